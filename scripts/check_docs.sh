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

# Every picture is shown somewhere.
while read -r picture; do
    grep -q "$(basename "$picture")" README.md docs/*.md || complain "$picture is shown nowhere"
done < <(git ls-files docs/images)

[ "$failures" = 0 ] || exit 1
echo "check_docs: links, paths, commands and tests are there"
