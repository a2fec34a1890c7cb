#!/usr/bin/env python3
"""The whole-file check as a script would do it, to compare the program with.

Reads a data file, checks the form and the capitals of every variation, and looks for
spellings that are used twice, within a district or by two. The counts are printed as one
line of JSON; the spellings that are used twice go to the second file.
"""
import argparse
import json
import os
import re
from collections import Counter, defaultdict

ENCODING = "cp1252"
CONTROL = re.compile(r"[\x00-\x1f|]")
MISPLACED = re.compile(r"^ | $|% | %|!.*!|! ")
UNREADABLE = re.compile(r"[_*\[\]{}]")
NOT_ASCII = re.compile(r"[\x7f-\uffff]")
BETWEEN_WORDS = re.compile(r"[ \-.,(/'\t]")
MARKER = re.compile(r"[!%]")
HEADER_PARTS = range(9, 14)


def split_markers(text):
    """The markers before the base name, and the base name."""
    trimmed = text.strip(" ")
    base = trimmed.lstrip("!%")
    prefix = trimmed[:len(trimmed) - len(base)]
    base = base.lstrip(" ")
    marker = MARKER.search(base, 1)
    return prefix, base[:marker.start()] if marker else base


def has_good_percents(trimmed):
    """Whether the percent signs are a date mark before the name or a volume behind it."""
    count = trimmed.count("%")
    opens = trimmed.startswith(("%", "!%"))
    if count == 0:
        return True
    if trimmed.endswith("%"):
        return False
    if count == 1:
        return opens or bool(trimmed.split("%")[0].strip(" "))
    return opens and trimmed.rindex("%") >= 3


def is_valid(text, base):
    """Whether the variation is well formed."""
    trimmed = text.strip(" ")
    if CONTROL.search(text) or MISPLACED.search(text) or not has_good_percents(trimmed):
        return False
    if trimmed.endswith("!") and trimmed.index("!") == len(trimmed) - 1:
        return False
    return "?" not in base or len(base.strip(" ")) < 2


def is_warned(text, prefix, base):
    """Whether something about a well-formed variation is suspicious."""
    return bool(NOT_ASCII.search(text)) or ("!" not in prefix and bool(UNREADABLE.search(base)))


def has_unusual_capitals(base, small_words):
    """Whether a word is neither written with one capital nor one that needs none."""
    for word in BETWEEN_WORDS.split(base.strip(" ").lstrip("!%")):
        if not word:
            continue
        capitals = (word.find("]") + 1 or len(word)) if word[0] == "[" else 1
        expected = word[:capitals].upper() + word[capitals:].lower()
        if word != expected and word.lower() not in small_words:
            return True
    return False


def read_words(path):
    """The words that need no capital."""
    with open(path, encoding=ENCODING) as lines:
        items = [item.strip().lower() for line in lines for item in line.split(",")]
    return {item for item in items if item}


class Check:
    """The counts of a file, and who uses which spelling."""

    def __init__(self, small_words):
        self.small_words = small_words
        self.counts = Counter(lines=0, districts=0, retained=0, variations=0, invalid=0, warnings=0, caps=0)
        self.uses = defaultdict(list)
        self.pairs_in_districts = 0

    def add_line(self, line):
        """Takes a line of the file in."""
        self.counts["lines"] += 1
        fields = line.split("|")
        header = fields[0].split("+")
        if not line or line[0] == "#" or len(header) not in HEADER_PARTS:
            self.counts["retained"] += 1
            return
        self.counts["districts"] += 1
        for number in header[3:7]:
            int(number)
        name = header[0].strip(" ")
        self.uses[name.upper()].append((name, name.upper()))
        keys = Counter(self.add_variation(name, text) for text in fields[1:])
        self.pairs_in_districts += sum(keys.values()) - len(keys)

    def add_variation(self, name, text):
        """Checks a variation of the district and returns what it is compared by."""
        self.counts["variations"] += 1
        prefix, base = split_markers(text)
        if not is_valid(text, base):
            self.counts["invalid"] += 1
        elif is_warned(text, prefix, base):
            self.counts["warnings"] += 1
        if has_unusual_capitals(base, self.small_words):
            self.counts["caps"] += 1
        key = base.upper()
        self.uses[key].append((name, text))
        return key

    def write_findings(self, out):
        """Writes a line for every spelling that is used again."""
        groups = pairs = 0
        for key in sorted(self.uses):
            uses = self.uses[key]
            if len(uses) < 2:
                continue
            groups += 1
            pairs += len(uses) - 1
            for (district, text), (other, _) in zip(uses, uses[1:]):
                if district == other:
                    out.write(f"{district} contains a duplicate variation - {text}\n")
                else:
                    out.write(f"{district} and {other} both use the variation {text}\n")
        self.counts.update(pairs_in_districts=self.pairs_in_districts, groups=groups, pairs=pairs)


def arguments():
    """The files named on the command line."""
    parser = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter)
    parser.add_argument("file")
    parser.add_argument("findings", nargs="?", default=os.devnull)
    parser.add_argument("words", nargs="?", help="the words that need no capital")
    return parser.parse_args()


def main():
    """Checks the file."""
    files = arguments()
    check = Check(read_words(files.words) if files.words else set())
    with open(files.file, encoding=ENCODING, newline="\n") as lines:
        for line in lines:
            check.add_line(line.rstrip("\r\n").strip(" "))
    with open(files.findings, "w", encoding=ENCODING) as out:
        check.write_findings(out)
    print(json.dumps(check.counts))


if __name__ == "__main__":
    main()
