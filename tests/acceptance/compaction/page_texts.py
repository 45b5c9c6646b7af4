#!/usr/bin/env python3
"""The texts of pages among the answers read from standard input, one a line, in drawing order."""
import json
import sys

for line in sys.stdin:
    answer = json.loads(line)
    if "echo" in answer:
        print("--", answer["echo"])
    if {"text", "x", "y"} <= answer.keys():
        print(answer["text"])
