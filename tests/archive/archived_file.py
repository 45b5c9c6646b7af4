"""The rules of tagged PDF files, told by what breaks them. Reads a file through qpdf, which knows nothing of its maker.

    faults(path)    sentences, one a fault; none for a file that keeps the rules
    elements(path)  the elements of the file's structure in reading order, with what they are and show
"""

import base64
import json
import re
import subprocess

# What puts ink on a page, and what opens and closes a stretch of content.
PAINTS = {"S", "s", "f", "F", "f*", "B", "B*", "b", "b*", "Tj", "TJ", "'", '"', "Do", "sh", "BI"}
OPENS = {"BMC", "BDC"}
CLOSES = "EMC"
BLOCKS = {"/H1", "/H2", "/P", "/Table", "/Figure"}
HOLDS = {  # what may stand in what
    "/Document": {"/Sect"},
    "/Sect": BLOCKS,
    "/Table": {"/TR"},
    "/TR": {"/TH", "/TD"},
}
TOKEN = re.compile(r"<<|>>|<[0-9A-Fa-f]*>|\((?:\\.|[^\\()])*\)|/[^\s/<>\[\]()]*|[\[\]]|[^\s/<>\[\]()]+")


class File:
    def __init__(self, path):
        said = subprocess.run(["qpdf", "--json=2", "--json-stream-data=inline", "--decode-level=generalized", str(path)],
                              capture_output=True, check=True).stdout
        content = json.loads(said)
        self.pages = [page["object"] for page in content["pages"]]
        self.contents = {page["object"]: page["contents"] for page in content["pages"]}
        self.objects = content["qpdf"][1]

    def value(self, reference):
        """The object with a number; anything else is its own value."""
        if isinstance(reference, str) and re.fullmatch(r"\d+ \d+ R", reference):
            found = self.objects.get("obj:" + reference, {})
            return found["value"] if "value" in found else found.get("stream", {}).get("dict")
        return reference

    def catalog(self):
        return self.value(self.value(self.objects["trailer"]["value"])["/Root"])

    def content(self, page):
        streams = [self.objects["obj:" + number]["stream"]["data"] for number in self.contents[page]]
        return b"\n".join(base64.b64decode(data) for data in streams).decode("latin-1")


class Stretches:
    """The stretches of a page's content: which are marked with which number, and what lies in none."""

    def __init__(self, content):
        self.numbers = []
        self.faults = []
        depth = []  # of each open stretch: whether what is in it is taken care of
        words = []
        for word in TOKEN.findall(content):
            if word in OPENS:
                self.open(words, depth)
            elif word == CLOSES:
                if not depth:
                    self.faults.append("a stretch is closed that was never opened")
                else:
                    depth.pop()
            elif word in PAINTS and not any(depth):
                self.faults.append(f"{' '.join(words[-6:])} {word} is neither tagged nor an artifact")
            else:
                words.append(word)
                continue
            words = []
        if depth:
            self.faults.append("a stretch is never closed")

    def open(self, words, depth):
        if "/MCID" in words:
            if any(depth):
                self.faults.append("a marked stretch stands within another one")
            self.numbers.append(int(words[words.index("/MCID") + 1]))
            depth.append(True)
        else:
            depth.append("/Artifact" in words)


class Tree:
    """The structure tree, walked from its root."""

    def __init__(self, file):
        self.file = file
        self.faults = []
        self.stretches = {}  # (page, number): element
        self.elements = []  # (kind, dictionary) in reading order
        root = file.catalog().get("/StructTreeRoot")
        if not root or not file.catalog().get("/MarkInfo", {}).get("/Marked"):
            self.faults.append("the file does not say that it is tagged")
            return
        self.root = file.value(root)
        self.seen = set()
        self.walk(self.root["/K"], root, "")

    def walk(self, reference, parent, within):
        element = self.file.value(reference)
        kind = element.get("/S")
        if reference in self.seen:
            self.faults.append(f"{kind} {reference} stands in the tree twice")
            return
        self.seen.add(reference)
        self.elements.append((kind, element))
        if element.get("/P") != parent:
            self.faults.append(f"{kind} {reference} does not know its parent")
        if within in HOLDS and kind not in HOLDS[within]:
            self.faults.append(f"{kind} stands in {within}")
        if kind == "/Figure" and len(element.get("/Alt", "")) < 5:
            self.faults.append("a figure does not say what it shows")
        for kid in kids(element):
            if isinstance(kid, int):
                self.reach(reference, element, kid)
            else:
                self.walk(kid, reference, kind)
        if kind == "/Table":
            self.check_table(element)

    def reach(self, reference, element, number):
        place = (element.get("/Pg"), number)
        if place in self.stretches:
            self.faults.append(f"stretch {number} is in the tree twice")
        self.stretches[place] = reference

    def check_table(self, table):
        """Every row has a cell, its own or one that reaches into it, for every column."""
        rows = [self.file.value(row) for row in kids(table)]
        taken = set()
        heads = 0
        for at, row in enumerate(rows):
            column = 0
            for cell in map(self.file.value, kids(row)):
                about = cell.get("/A", {})
                heads += cell["/S"] == "/TH"
                if cell["/S"] == "/TH" and "/Scope" not in about:
                    self.faults.append("a head does not say of what")
                while (at, column) in taken:
                    column += 1
                for down in range(about.get("/RowSpan", 1)):
                    for across in range(about.get("/ColSpan", 1)):
                        taken.add((at + down, column + across))
        width = max(column for _, column in taken) + 1
        if len(taken) != width * len(rows):
            self.faults.append(f"a table of {len(rows)} rows is not of {width} columns all through")
        if not heads:
            self.faults.append("a table has no heads")


def kids(element):
    found = element.get("/K", [])
    return found if isinstance(found, list) else [found]


def pairs(nums):
    return dict(zip(nums[::2], nums[1::2]))


def faults(path):
    file = File(path)
    tree = Tree(file)
    found = list(tree.faults)
    if found:
        return found
    reached = dict(tree.stretches)
    parents = pairs(file.value(tree.root["/ParentTree"])["/Nums"])
    for number, page in enumerate(file.pages, 1):
        stretches = Stretches(file.content(page))
        found += [f"page {number}: {fault}" for fault in stretches.faults]
        if stretches.numbers != list(range(len(stretches.numbers))):
            found.append(f"page {number}: its stretches are not numbered in a row")
        owners = file.value(parents.get(file.value(page).get("/StructParents"), []))
        for stretch in stretches.numbers:
            owner = reached.pop((page, stretch), None)
            if owner is None:
                found.append(f"page {number}: nothing in the tree has stretch {stretch}")
            elif stretch >= len(owners) or owners[stretch] != owner:
                found.append(f"page {number}: stretch {stretch} leads to another element than has it")
    found += [f"the tree has stretch {number} of {page}, which is not there" for page, number in reached]
    return found


def elements(path):
    return Tree(File(path)).elements
