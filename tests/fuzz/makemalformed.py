#!/usr/bin/env python3
"""Makes the malformed inputs that malformed.md describes, for each reader one file per case.

Usage: makemalformed.py OUT_DIR      writes OUT_DIR/<root element>/<case>.xml
"""
import pathlib
import sys

PROLOG = b'<?xml version="1.0" encoding="UTF-8"?>\n'

# Root element of each reader: what its start tag carries, and a child with a text that it knows.
READERS = {
    b"Job": (b' version="1.2"', b"JobInformation", b"<JobInformation><Name>Watch</Name></JobInformation>"),
    b"TunerProperties": (b' version="1.2" name="R" type="HT720" baseresource="HF-1" quantity="1"', b"Component",
                         b'<Component type="ADemComponent" name="ADemComponent" optional="false"/>'),
    b"FFM_Settings": (b"", b"CenterFrequency", b"<CenterFrequency>145500000</CenterFrequency>"),
}


def cases(root, attributes, child, body):
    start = b"<" + root + attributes + b">"
    end = b"</" + root + b">"
    whole = PROLOG + start + body + end

    def inside(text):
        return PROLOG + start + text + body + end

    def tag(text):
        return PROLOG + b"<" + root + attributes + text + b">" + body + end

    yield "empty-file", b""
    yield "blanks-only", b" \n\t\n"
    yield "plain-text", b"not a file of this kind"
    yield "declaration-only", PROLOG
    yield "comment-only", PROLOG + b"<!-- nothing -->"
    yield "wrong-root", PROLOG + b"<Elsewhere" + attributes + b">" + body + b"</Elsewhere>"
    yield "root-lower-case", PROLOG + b"<" + root.lower() + attributes + b"></" + root.lower() + b">"
    yield "root-in-namespace", PROLOG + b'<x:' + root + b' xmlns:x="urn:x"' + attributes + b"></x:" + root + b">"
    yield "two-roots", whole + start + end
    yield "text-before-root", PROLOG + b"text" + start + end
    yield "text-behind-root", whole + b"text"
    yield "cut-in-declaration", PROLOG[:20]
    yield "cut-in-start-tag", PROLOG + start[:-1]
    yield "cut-in-root-name", PROLOG + start[:3]
    yield "cut-behind-start-tag", PROLOG + start
    yield "cut-in-child", PROLOG + start + body[:len(body) // 2]
    yield "cut-in-end-tag", whole[:-2]
    yield "cut-in-comment", inside(b"<!-- never")[:len(PROLOG + start) + 10]
    yield "cut-in-cdata", PROLOG + start + b"<![CDATA[ never"
    yield "cut-in-entity", PROLOG + start + b"&am"
    yield "end-tag-missing", PROLOG + start + body
    yield "end-tag-wrong", PROLOG + start + body + b"</Other>"
    yield "end-tag-doubled", whole + end
    yield "end-tag-with-attribute", PROLOG + start + body + b"</" + root + b' a="1">'
    yield "children-crossed", inside(b"<a><b></a></b>")
    yield "child-not-closed", inside(b"<" + child + b">")
    yield "attribute-twice", tag(b' a="1" a="2"')
    yield "attribute-without-value", tag(b" a")
    yield "attribute-without-quotes", tag(b" a=1")
    yield "attribute-quote-open", tag(b' a="1')
    yield "attribute-quotes-mixed", tag(b" a=\"1'")
    yield "attribute-with-less-than", tag(b' a="<"')
    yield "attributes-not-separated", tag(b' a="1"b="2"')
    yield "attribute-name-digit", tag(b' 1a="1"')
    yield "element-name-digit", inside(b"<1a/>")
    yield "element-name-blank", inside(b"< a/>")
    yield "element-name-empty", inside(b"<></>")
    yield "prefix-undeclared", inside(b"<p:a/>")
    yield "prefix-empty", inside(b"<:a/>")
    yield "entity-unknown", inside(b"<a>&unknown;</a>")
    yield "entity-without-semicolon", inside(b"<a>a & b</a>")
    yield "character-reference-zero", inside(b"<a>&#0;</a>")
    yield "character-reference-control", inside(b"<a>&#7;</a>")
    yield "character-reference-too-large", inside(b"<a>&#x110000;</a>")
    yield "character-reference-word", inside(b"<a>&#ten;</a>")
    yield "control-character", inside(b"<a>\x07</a>")
    yield "nul-in-text", inside(b"<a>\x00</a>")
    yield "nul-behind-root", whole + b"\x00<junk/>"
    yield "cdata-end-in-text", inside(b"<a>]]></a>")
    yield "comment-two-dashes", inside(b"<!-- a -- b -->")
    yield "instruction-named-xml", inside(b"<?xml again?>")
    yield "declaration-late", b"\n" + whole
    yield "declaration-without-version", whole.replace(b'version="1.0" ', b"", 1)
    yield "document-type", PROLOG + b"<!DOCTYPE " + root + b">" + start + body + end
    yield "document-type-entities", (PROLOG + b"<!DOCTYPE " + root + b' [<!ENTITY a "aaaaaaaaaa"><!ENTITY b "'
                                     + b"&a;" * 1000 + b'">]>' + start + b"&b;" * 1000 + end)
    yield "levels-300", inside(b"<a>" * 300 + b"</a>" * 300)
    yield "levels-100000", inside(b"<a>" * 100000)
    yield "attributes-300", tag(b"".join(b' a%d="1"' % i for i in range(300)))
    yield "attributes-200000", tag(b"".join(b' a%d="1"' % i for i in range(200000)))
    yield "no-utf8-in-name", inside(b"<a\xff/>")


def main():
    folder = pathlib.Path(sys.argv[1])
    for root, reader in READERS.items():
        target = folder / root.decode()
        target.mkdir(parents=True, exist_ok=True)
        for name, content in cases(root, *reader):
            (target / f"{name}.xml").write_bytes(content)


main()
