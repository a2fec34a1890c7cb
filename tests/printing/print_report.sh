#!/usr/bin/env bash
# Prints a report through a real print server on the loopback interface and reads the resulting PDF;
# then without any printer. Needs root, as the PDF printer does.
# usage: print_report.sh PRINT-REPORT-PROGRAM
set -euo pipefail
program=$(readlink -f "$1")
port=6310
work=$(mktemp -d)
chmod 755 "$work"
server=""
# shellcheck disable=SC2317 # called by the trap
cleanup() {
    [ -z "$server" ] || kill "$server" 2>/dev/null || true
    wait 2>/dev/null || true
    rm -rf "$work"
}
trap cleanup EXIT
fail() {
    echo "print_report: $*" >&2
    tail -n 20 "$work/error_log" /var/log/cups/cups-pdf*log >&2 2>/dev/null || true
    exit 1
}

export CUPS_SERVER=127.0.0.1:$port QT_QPA_PLATFORM=offscreen LC_ALL=C.UTF-8 TZ=UTC

# Without a server there is no printer: that is said.
"$program" 3 >"$work/without.txt" 2>/dev/null
grep -q "cannot be printed" "$work/without.txt" || fail "nothing was said without a printer"

mkdir -p "$work"/{cache,state,spool,tmp}
# The filters of the server run as the user lp.
chgrp lp "$work/tmp"
chmod 1770 "$work/tmp"
cat >"$work/cupsd.conf" <<CONF
Listen 127.0.0.1:$port
LogLevel warn
<Location />
  Order allow,deny
  Allow 127.0.0.1
</Location>
<Policy default>
  <Limit All>
    Order deny,allow
  </Limit>
</Policy>
CONF
cat >"$work/cups-files.conf" <<CONF
ServerRoot $work
CacheDir $work/cache
StateDir $work/state
RequestRoot $work/spool
TempDir $work/tmp
AccessLog $work/access_log
ErrorLog $work/error_log
PageLog $work/page_log
CONF
/usr/sbin/cupsd -f -c "$work/cupsd.conf" -s "$work/cups-files.conf" &
server=$!
for ((i = 0; i < 50; i++)); do
    lpstat -r 2>/dev/null | grep -q 'is running' && break
    sleep 0.2
done
lpstat -r | grep -q 'is running' || fail "the print server did not start"
lpadmin -p QuexalPDF -E -v cups-pdf:/ -P /usr/share/ppd/cups-pdf/CUPS-PDF_opt.ppd 2>/dev/null
# Of the ways to PostScript, this one keeps what the letters stand for.
lpadmin -p QuexalPDF -o pdftops-renderer-default=pdftocairo 2>/dev/null
lpadmin -d QuexalPDF

# The PDF printer puts its files into the folder PDF of the user's home.
home=$(getent passwd "$(id -un)" | cut -d: -f6)
mkdir -p "$home/PDF"
touch "$work/before"
"$program" 200 >"$work/said.txt" 2>/dev/null
[ ! -s "$work/said.txt" ] || fail "the program said: $(cat "$work/said.txt")"
pdf=""
for ((i = 0; i < 100; i++)); do
    pdf=$(find "$home/PDF" /var/spool/cups-pdf -name '*.pdf' -newer "$work/before" 2>/dev/null | head -n 1 || true)
    [ -n "$pdf" ] && [ -z "$(lpstat -o 2>/dev/null)" ] && break
    sleep 0.2
done
[ -n "$pdf" ] || fail "no PDF was printed"

# Words in reading order, wherever the lines are broken.
pdftotext -layout "$pdf" - | tr -d '\f' | tr -s '[:space:]' '\n' | grep -v '^$' >"$work/printed.txt"
today=$(LC_ALL=C date +'%d %b %Y')
head -n 14 "$work/printed.txt" | paste -sd' ' >"$work/heading.txt"
grep -q "^Duplicate Check on File /data/north.txt Check performed on $today at " "$work/heading.txt" ||
    fail "the heading is: $(cat "$work/heading.txt")"
# Every item, in order, nothing cut off: put the broken words together again and compare.
for ((i = 1; i <= 200; i++)); do
    printf 'Item%dsaysthatDistrict<b>A</b>containsaduplicate' "$i"
    ((i % 10)) || printf -- '-%send%d' "$(printf 'x%.0s' {1..150})" "$i"
done >"$work/expected.txt"
tr -d '\n' <"$work/printed.txt" | sed 's/^.*at[0-9:]*\(AM\|PM\)\{0,1\}Item1says/Item1says/' >"$work/items.txt"
cmp "$work/expected.txt" "$work/items.txt" || fail "the printed items differ"
pages=$(pdfinfo "$pdf" | sed -n 's/^Pages: *//p')
[ "$pages" -gt 1 ] || fail "200 items are on $pages page"
rm -f "$pdf"
echo "print_report: 200 items on $pages pages, complete and in order"
