#!/usr/bin/env bash
# Checks that the documents are true to the project: the files and pages that they link to or name, the commands
# that they give, and the tests that they claim.
# shellcheck disable=SC2016 # the code marks in the patterns are meant
set -euo pipefail
cd "$(dirname "$(readlink -f "$0")")/.."

failures=0
complain() {
    echo "check_docs: $*" >&2
    failures=$((failures + 1))
}

# What a page links to, without the part behind "#"; pages elsewhere are not asked for.
check_links() {
    local page=$1 link
    while read -r link; do
        [ -e "$(dirname "$page")/${link%%#*}" ] || complain "$page links to $link, which is not there"
    done < <(grep -oP '\]\(\K[^)]+' "$page" | grep -vE '^(https?:|mailto:|#)')
}

# Paths of the project in code marks. Patterns and what is made by building are left out.
check_paths() {
    local page=$1 path
    while read -r path; do
        [ -e "$path" ] || complain "$page names $path, which is not there"
    done < <(grep -oP '`\K(src|tests|scripts|docs|data|bench|fuzz|tour|packaging|\.ci)/[\w./-]+(?=`)' "$page")
}

# Commands of the project, in code marks or on lines of their own.
check_commands() {
    local page=$1 command
    while read -r command; do
        [ -x "$command" ] || complain "$page gives the command $command, which cannot be run"
    done < <(grep -oP '(?:^ {0,4}|`)\K(\./(run|test)|scripts/\w+\.sh|bench/compare|\.ci/run)(?=[ `]|$)' "$page")
}

# A test is named with its suite, or follows one of the same suite by its name alone.
check_tests() {
    local page=$1 name
    while read -r name; do
        grep -qrE "TEST(_F|_P)?\(\w+, ${name#*.}\)" tests || complain "$page names the test $name, which is not there"
    done < <(grep -oP '`\K([A-Z]\w*Test\w*\.|[A-Z]\w+\.)?[A-Z]\w{24,}(?=`)' "$page")
    while read -r name; do
        grep -qrE "TEST(_F|_P)?\(${name%%.*}, ${name#*.}\)" tests || complain "$page names $name, which is not there"
    done < <(grep -oP '`\K[A-Z]\w+\.[A-Z]\w+(?=`)' "$page")
}

while read -r page; do
    check_links "$page"
    case $page in CHANGELOG.md) continue ;; esac
    check_paths "$page"
    check_commands "$page"
done < <(git ls-files '*.md')
check_tests docs/reliability.md

# Every picture is shown somewhere, and is one that the tour takes.
while read -r picture; do
    name=$(basename "$picture" .png)
    station=${name#dark-} station=${station#windows-}
    grep -q "/$name\.png)" README.md docs/*.md || complain "$picture is shown nowhere"
    grep -q "Picture(.*QStringLiteral(\"$station\")" tour/main.cpp || complain "the tour does not take $picture"
done < <(git ls-files docs/images)

# Software centres are told the size of each picture, which stands in the header of its file.
while read -r width height name; do
    picture=docs/images/$name
    [ -f "$picture" ] || { complain "packaging/metainfo.xml.in names $picture, which is not there"; continue; }
    read -r -a size < <(od -An -j16 -N8 -t u4 --endian=big "$picture")
    [ "${size[*]}" = "$width $height" ] || complain "packaging/metainfo.xml.in says $width x $height of $picture, which has ${size[*]}"
done < <(sed -n 's|.*width="\([0-9]*\)" height="\([0-9]*\)">@QUEXAL_SCREENSHOTS@/\(.*\)</image>|\1 \2 \3|p' packaging/metainfo.xml.in)

[ "$failures" = 0 ] || exit 1
echo "check_docs: links, paths, commands and tests are there"
