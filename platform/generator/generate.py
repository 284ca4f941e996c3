#!/usr/bin/env python3
"""Writes the classes of the file elements: generate.py --namespace N --library L --output DIR SCHEMA..."""

import argparse
import os
import sys
from textwrap import wrap
from xml.sax.saxutils import quoteattr

import schemamodel

CPP_TYPES = {"Boolean": "bool", "Int": "int", "Long": "qint64", "Float": "float", "Double": "double",
             "String": "QString", "DateTime": "QString"}
CELLS = {"Float": "Real", "Double": "Real", "String": "Text", "DateTime": "Text"}  # the other kinds: Integer
# Declaration and body. @ is the scope, n the field's name, t its type, q the same from outside, p as a parameter.
OPERATIONS = {
    "simple": [("{q} @Get{n}() const", "return {value};"), ("void @Set{n}({p} value)", "set{cell}({i}, value);")],
    "element": [("const {t}& @Get{n}() const", "return static_cast<const {t}&>(elementAt({i}));"),
                ("{t}& @Get{n}()", "return static_cast<{t}&>(elementAt({i}));"),
                ("void @Set{n}(const {t}& value)", "setElement({i}, value);")],
    "list": [("const QVector<{q}>& @Get{n}() const", "return *static_cast<const QVector<{t}>*>(listAt({i}));"),
             ("QVector<{q}>& @Get{n}()", "return *static_cast<QVector<{t}>*>(listAt({i}));"),
             ("void @Set{n}(const QVector<{t}>& value)", "Get{n}() = value;"),
             ("void @Append{n}({p} value)", "Get{n}().append(value);")],
    "every": [("bool @Is{n}Set() const", "return isFieldSet({i});"), ("void @Reset{n}()", "resetField({i});")],
    "enumeration": [("static QString @{n}ToName({t} value)", "return Tables::{e}.name(value);"),
                    ("static {q} @NameTo{n}(const QString& name)", "return {t}(Tables::{e}.number(name));"),
                    ("static QStringList @Get{n}s()", "return Tables::{e}.allNames();"),
                    ("static QStringList @GetGUI{n}s()", "return Tables::{e}.allGuiTexts();")],
    "choice": [("int @GetChoice{n}() const", "return chosen();"),
               ("static QString @Choice{n}ToName(int choice)", "return Tables::{n}.alternativeName(choice);")],
    "sets": [("QVector<REPORTGENERATOR::ParameterSet> parameterSets()",
              "return {std::begin(PARAMETER_SETS), std::end(PARAMETER_SETS)};"),
             ("const REPORTGENERATOR::ParameterSet* findParameterSet(const QString& name)",
              "return findSet(PARAMETER_SETS, name);")],
}


def literal(text):
    return "nullptr" if text is None else '"%s"' % text.replace("\\", "\\\\").replace('"', '\\"')


def comment(*sentences):
    text = " ".join(text if text.endswith(".") else text + "." for text in sentences if text)
    return wrap(text, 106, initial_indent="/// ", subsequent_indent="/// ")


def description(field):
    """What the comment of a field says: label, unit, range, default, and the schema's own sentences."""
    parts = [(field.label or field.name) + (" (%s)" % field.unit if field.unit else "")]
    if not field.complex and (field.type.minimum, field.type.maximum) != (None, None):
        parts.append("from %s to %s" % (field.type.minimum or "the least", field.type.maximum or "the greatest"))
    parts.append("required" if field.required else "optional")
    parts += ["default " + (field.default or "empty")] if field.default is not None else []
    return comment("; ".join(parts), field.node.documentation(), field.help)


def flat_schema(schema):
    """The schema with what it includes in place and without annotations, line by line."""
    def lines(node):
        attributes = "".join(" %s=%s" % (name, quoteattr(value)) for name, value in node.attributes.items())
        children = [child for child in node.children if child.tag != "xs:annotation"]
        yield "<%s%s%s>" % (node.tag, attributes, "" if children else "/")
        for child in children:
            yield from lines(child)
        if children:
            yield "</%s>" % node.tag
    yield '<xs:schema xmlns:xs="%s">' % schemamodel.XS
    for node in [child for part in schema.included + [schema] for child in part.node.children]:
        if node is schema.root or node.tag in ("xs:simpleType", "xs:complexType"):
            yield from lines(node)
    yield "</xs:schema>"


def array(head, rows):
    return ["", head + " = {"] + ["    %s," % row for row in rows] + ["};"]


class Emitter:
    """Writes header and source of one schema."""
    def __init__(self, namespace, library, schema, schemas):
        self.namespace, self.library, self.schema = namespace, library, schema
        self.usages = {}
        for field in (field for part in schemas for entry in part.classes for field in entry.fields):
            self.usages.setdefault(field.type, set()).add(field.name)
        self.roots = {part.root.get("type"): part.root.get("name") for part in schemas if part.root is not None}
        self.sets = [(name, label, entry) for entry in schema.classes for name, label in entry.sets]

    def translated(self, text):
        return "nullptr" if text is None else 'QT_TRANSLATE_NOOP("%s", %s)' % (self.namespace, literal(text))

    def names(self, entry):
        """Name of an element that stands alone, then the other names that reading accepts for it."""
        used = sorted(self.usages.get(entry, set()))
        own = self.roots.get(entry.name) or (used[0] if len(used) == 1 else entry.name)
        return [own] + sorted({entry.name, *used} - {own})

    def operations(self, entry):
        """Comment, declarations and bodies, group by group."""
        if entry.choice:
            yield (comment("Number of the alternative that is set, from 0 in the order below, and its name; -1: none"),
                   [[text.format(n=entry.name) for text in pair] for pair in OPERATIONS["choice"]])
        for i, field in enumerate(entry.fields):
            cell = CELLS.get(field.kind, "Integer")
            enumeration = field.kind == "Enumeration"
            t = field.type.name if field.complex else field.name if enumeration else CPP_TYPES[field.kind]
            value = "%sAt(%d)" % (cell.lower(), i) + (" != 0" if field.kind == "Boolean" else "")
            if t in ("int", "float") or enumeration:
                value = "static_cast<%s>(%s)" % (t, value)
            values = dict(n=field.name, t=t, i=i, cell=cell, value=value, e=field.type.name,
                          q=entry.name + "::" + t if enumeration else t,
                          p="const %s&" % t if field.complex or t == "QString" else t)
            kinds = ["list" if field.list else "element" if field.complex else "simple", "every"]
            yield description(field), [[text.format(**values) for text in pair]
                                       for kind in kinds + ["enumeration"] * enumeration for pair in OPERATIONS[kind]]

    def header(self):
        path, names = "#include <%s/%%s.h>" % self.library, [entry.name for entry in self.schema.classes]
        lines = ["// Made from %s at build time." % self.schema.file, "#pragma once", "", "#include <QStringList>",
                 "#include <QVector>", "#include <reportlayer/irgobject.h>", path % (self.library + "_export")]
        lines += [path % part.stem for part in self.schema.included] + ["", "namespace %s {" % self.namespace, ""]
        lines += ["class %s;" % name for name in names]
        export = self.library.upper() + "_EXPORT "
        for entry in self.schema.classes:
            lines += self.declaration(entry, export)
        if self.sets:
            lines += [""] + comment("All parameter sets in schema order, and one of them; null: there is none")
            lines += [export + head + ";" for head, _ in OPERATIONS["sets"]]
        return lines + ["", "} // namespace %s" % self.namespace] + [
            "Q_DECLARE_TYPEINFO(%s::%s, Q_MOVABLE_TYPE);" % (self.namespace, name) for name in names]

    def declaration(self, entry, export):
        members = []
        for field in entry.fields:
            if field.kind == "Enumeration":
                members += wrap("enum %s : int { %s };" % (field.name, ", ".join(field.enumerators())), 106,
                                subsequent_indent="    ")
        members += [entry.name + "();", "static const REPORTGENERATOR::ElementTable& fieldTable();"]
        for text, operations in self.operations(entry):
            members += [""] + text + [head.replace("@", "") + ";" for head, _ in operations]
        return ["", *comment(entry.node.documentation() or "Element <%s>." % self.names(entry)[0]),
                "class %s%s : public REPORTGENERATOR::IRGObject" % (export, entry.name), "{", "public:",
                *(member and "    " + member for member in members), "};"]

    def source(self):
        schema = self.schema
        lines = ["// Made from %s at build time." % schema.file, "#include <%s/%s.h>" % (self.library, schema.stem),
                 "#include <reportlayer/fieldlist.h>", "", "namespace %s {" % self.namespace,
                 "using namespace REPORTGENERATOR;", "namespace Tables {"]
        for part in schema.included + [schema]:
            lines += ["extern const EnumTable %s;" % entry.name for entry in part.simples if entry.values]
            lines += ["extern const ElementTable %s;" % entry.name for entry in part.classes]
        lines += array("constexpr const char* SCHEMA_LINES[]", map(literal, flat_schema(schema)))
        lines += ["[[maybe_unused]] constexpr SchemaText SCHEMA = {%s, SCHEMA_LINES, std::size(SCHEMA_LINES), %s};"
                  % (literal(schema.file), literal(schema.version))]
        for entry in (entry for entry in schema.simples if entry.values):
            lines += self.enumeration(entry)
        for entry in schema.classes:
            lines += self.table(entry)
        rows = ['{%s, "%s", %s, &%s}' % (literal(name), self.namespace, self.translated(label), entry.name)
                for name, label, entry in self.sets]
        lines += array("constexpr ParameterSet PARAMETER_SETS[]", rows) if rows else []
        lines += ["} // namespace Tables", ""]
        pairs = [(head, body.replace("PARA", "Tables::PARA")) for head, body in OPERATIONS["sets"] if self.sets]
        for entry in schema.classes:
            scope = entry.name + "::"
            lines += ["%s%s() : IRGObject(Tables::%s) {}" % (scope, entry.name, entry.name)]
            pairs += [("const ElementTable& %sfieldTable()" % scope, "return Tables::%s;" % entry.name)]
            pairs += [(head.replace("static ", "").replace("@", scope), body)
                      for _, group in self.operations(entry) for head, body in group]
        return lines + ["%s { %s }" % pair for pair in pairs] + ["} // namespace %s" % self.namespace]

    def enumeration(self, entry):
        lines = array("constexpr const char* %s_NAMES[]" % entry.name, [literal(name) for name, _ in entry.values])
        lines += array("constexpr const char* %s_TEXTS[]" % entry.name, [self.translated(t) for _, t in entry.values])
        return lines + ['constexpr EnumTable {0} = {{"{1}", {0}_NAMES, {0}_TEXTS, {2}}};'.format(
            entry.name, self.namespace, len(entry.values))]

    def table(self, entry):
        lines = array("constexpr const char* %s_ACCEPTED[]" % entry.name, map(literal, self.names(entry)))
        if entry.fields:
            lines += array("constexpr Field %s_FIELDS[]" % entry.name, map(self.row, entry.fields))
        text = "{0}_FIELDS, {1}, requiredFieldsOf({0}_FIELDS), elementFieldsOf({0}_FIELDS)"
        text = text if entry.fields else "nullptr, 0, 0, 0"
        text = ('constexpr ElementTable {0} = {{"{0}", {0}_ACCEPTED[0], {0}_ACCEPTED, std::size({0}_ACCEPTED), ' + text
                + ", {2}, {3}, &SCHEMA, &createElement<{4}::{0}>, &sharedElement<{4}::{0}>}};")
        flags = [str(flag).lower() for flag in (entry.choice, entry.name in self.roots)]
        return lines + [text.format(entry.name, len(entry.fields), *flags, self.namespace)]

    def row(self, field):
        """A field as a row of its class's table."""
        given = [(name, "true") for name in ("attribute", "list", "required") if getattr(field, name)]
        texts = (("label", self.translated), ("unit", literal), ("help", self.translated), ("default", literal))
        texts = ((name + "Text", write(getattr(field, name))) for name, write in texts)
        given += [("context", '"%s"' % self.namespace)] + [text for text in texts if text[1] != "nullptr"]
        number = "Real" if field.kind in ("Float", "Double") else "Integer"
        given += [("default" + number, field.default_number)] if field.default is not None else []
        for limit in ("minimum", "maximum") if not field.complex else ():
            if getattr(field.type, limit) is not None:
                given += [("has" + limit.capitalize(), "true"), (limit + number, getattr(field.type, limit))]
        given += [(field.kind.lower(), "&" + field.type.name)] * (field.complex or field.kind == "Enumeration")
        if field.list:
            own = field.type.name if field.complex else field.owner.name + "::" + field.name
            item = CPP_TYPES.get(field.kind, self.namespace + "::" + own)
            given.append(("listOperations", "&ListOf<%s>::OPERATIONS" % item))
        return 'Field("%s", FieldKind::%s)' % (field.name, field.kind) + "".join(
            ".with(&Field::%s, %s)" % pair for pair in given)


def main(arguments):
    options = argparse.ArgumentParser(description=__doc__)
    for name, how in (("--namespace", {}), ("--library", {}), ("--output", {}), ("schemas", {"nargs": "+"})):
        options.add_argument(name, **(how or {"required": True}))
    given = options.parse_args(arguments)
    try:
        schemas = schemamodel.read(given.schemas)
    except schemamodel.SchemaError as error:
        sys.exit(str(error))
    os.makedirs(given.output, exist_ok=True)
    for schema in schemas:
        emitter = Emitter(given.namespace, given.library, schema, schemas)
        for ending, lines in ((".h", emitter.header()), (".cpp", emitter.source())):
            with open(os.path.join(given.output, schema.stem + ending), "w", encoding="utf-8") as file:
                file.write("\n".join(lines) + "\n")


if __name__ == "__main__":
    main(sys.argv[1:])
