#!/bin/sh
# Writes docs/language-files.md from the program's own table of text positions:
#   scripts/language-doc.sh path/to/orvelin-cli > docs/language-files.md
# A test runs it and compares, so the page always says what the program reads.
set -eu
cli=$1
tmp=$(mktemp)
trap 'rm -f "$tmp"' EXIT
"$cli" language-template >"$tmp"

cat <<'TEXT'
# Language files, for translators

Orvelin shows its texts in English unless the language chosen under
**Options > Language** has a file in the program folder: `rus_lng` for Russian,
`heb_lng` for Hebrew (Hebrew windows are laid out right to left). A file is plain UTF-8
text, one text per line, and the meaning of a line is only its position:

- The **main block** is the file's first 104 lines: the main editor's controls and
  menus, then messages.
- Each **section** starts with a header line, written exactly as below (letter case
  counts: `[FrmDesign]` is not recognised). The k-th line after the header is the
  section's k-th text; lines after a section's last text are ignored, and a second
  header of the same name starts the section again.
- A line break inside a text is written `\n`. Keep the `&` that marks the key of a
  menu entry or button (before a letter of your word), `%1` where the program puts a
  number or a name, and spaces at the start or end of a text: the program joins such
  texts with others (`Saving Button # ` is followed by a number).
- A file shorter than a section leaves the rest of that section in English.

To start a translation, let the program write the English texts in this layout:

    orvelin-cli language-template > xyz_lng

To check one, list every position beside your text and see what would go wrong
(exit status 1 when something would):

    orvelin-cli language-check xyz_lng

The positions below are fixed for good: a new text of the program gets a new position
at the end of a section, so existing language files keep working.

TEXT

"$cli" language-check "$tmp" | awk -F '\t' '
    function cell(s) { gsub(/\|/, "\\|", s); return s }
    /^$/ { exit }
    /^[^ ]/ {
        if ($0 == "main block")
            print "## Main block (lines 1 to 104 of the file)\n"
        else
            print "\n## Section `" $0 "`\n"
        print "| Line | Window | Control or message | English |"
        print "|---:|---|---|---|"
        next
    }
    {
        n = $1; sub(/^ +/, "", n)
        split($2, name, " ")
        window = name[1] == "message" ? "" : name[1]
        what = name[1] == "message" ? "message " name[2] : name[2]
        print "| " n " | " window " | " cell(what) " | " cell($3) " |"
    }'
