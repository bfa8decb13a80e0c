# SPDX-FileCopyrightText: 2026 The batchcore developers
# SPDX-License-Identifier: MIT

# Reads a page of docs/ as Doxygen understands it. Doxygen knows no anchors of headings, and no files but its own input:
# headings get labels, links to headings become references to these labels, links into the sources become text. Pictures are
# found by their names alone.

# What a heading's anchor is in the address of a page.
function anchor_of(heading)
{
    heading = tolower(heading)
    gsub(/[^a-z0-9_ -]/, "", heading)
    gsub(/ /, "-", heading)
    return heading
}

# The label of a heading: the name of its page, and its anchor.
function label_of(page, anchor)
{
    sub(/^.*\//, "", page)
    sub(/\.md$/, "", page)
    return page "--" anchor
}

function link(text, target,    parts)
{
    if (target ~ /\.(png|jpg)$/) {
        sub(/^.*\//, "", target)
        return "[" text "](" target ")"
    }
    if (target ~ /^[a-z]+:/) {
        return "[" text "](" target ")"
    }
    if (target ~ /\.md$/ && target !~ /CONTRIBUTING/) {
        return "[" text "](" target ")"
    }
    if (target ~ /#/) {
        split(target, parts, "#")
        return "[" text "](@ref " label_of(parts[1] == "" ? FILENAME : parts[1], parts[2]) ")"
    }
    return text
}

function with_links(line,    result, found, text, target)
{
    result = ""
    while (match(line, /\[[^]]*\]\([^)]*\)/)) {
        found = substr(line, RSTART, RLENGTH)
        result = result substr(line, 1, RSTART - 1)
        line = substr(line, RSTART + RLENGTH)
        text = substr(found, 2, index(found, "](") - 2)
        target = substr(found, length(text) + 4, length(found) - length(text) - 4)
        result = result link(text, target)
    }
    return result line
}

# Elsewhere than in code, #name is a reference.
function with_plain_hashes(line,    result)
{
    result = ""
    while (match(line, / #[a-z]/)) {
        result = result substr(line, 1, RSTART) "\\#"
        line = substr(line, RSTART + 2)
    }
    return result line
}

/^```/ { is_code = !is_code; print; next }
is_code || /^    / { print; next }
/^##+ / {
    heading = $0
    sub(/^#+ /, "", heading)
    print $0 " {#" label_of(FILENAME, anchor_of(heading)) "}"
    next
}
# A link may go on in the next line.
{
    line = pending $0
    pending = ""
    if (match(line, /\[[^]]*$/) && line !~ /^ *\|/) {
        pending = line " "
        next
    }
    print with_links(with_plain_hashes(line))
}
END { if (pending != "") print with_links(pending) }
