#!/usr/bin/env python3
"""Prints the table of src/core/LetterPairs.cpp, made from the UnicodeData.txt that is named.

A pair is a capital and a small letter each of which is the other's only counterpart.
"""

import sys

WIDTH = 118


def pairs_in(path):
    capital_of, small_of = {}, {}
    with open(path, encoding="ascii") as lines:
        for line in lines:
            fields = line.split(";")
            letter = int(fields[0], 16)
            if fields[12]:
                capital_of[letter] = int(fields[12], 16)
            if fields[13]:
                small_of[letter] = int(fields[13], 16)
    return [(letter, small) for letter, small in sorted(small_of.items()) if capital_of.get(small) == letter]


def runs_of(pairs):
    """Runs of capitals one or two apart, with the same distance to their small letters."""
    runs = []
    while pairs:
        distance = pairs[0][1] - pairs[0][0]

        def length(step):
            count = 1
            while count < len(pairs) and pairs[count] == (pairs[0][0] + step * count, pairs[0][1] + step * count):
                count += 1
            return count

        step = 2 if length(2) > length(1) else 1
        count = length(step)
        runs.append(f"{{0x{pairs[0][0]:04X}, 0x{pairs[count - 1][0]:04X}, {distance}, {step}}},")
        pairs = pairs[count:]
    return runs


line = "   "
for run in runs_of(pairs_in(sys.argv[1])):
    if len(line) + 1 + len(run) > WIDTH:
        print(line)
        line = "   "
    line += " " + run
print(line)
