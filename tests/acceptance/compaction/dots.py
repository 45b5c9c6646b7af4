#!/usr/bin/env python3
"""Of each picture of a plot with its frame: the air-void line's caption, how many dots it has, where the first stands."""
import json
import sys

dots = []
for line in sys.stdin:
    answer = json.loads(line)
    if answer.get("colour") == "#FF00FF" and "point" in answer:
        dots.append(answer["point"])
    if "Air Void" in answer.get("text", ""):
        print(f'{answer["text"]}: {len(dots)} dots from {dots[0]}, dot 1000 at {dots[999]}')
        dots = []
