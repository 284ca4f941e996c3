"""Reads the closed subset of XML Schema that the file elements are described with."""

import os
import re
from xml.parsers import expat

XS = "http://www.w3.org/2001/XMLSchema"
JED = "urn:jobeditorve:field-tables"
# Each construct that is known: its attributes and the constructs within it. Everything else is an error.
KNOWN = {tag: (set(attributes.split()), set(children.split())) for tag, attributes, children in (
    ("xs:schema", "version elementFormDefault", "xs:annotation xs:include xs:element xs:complexType xs:simpleType"),
    ("xs:include", "schemaLocation", ""), ("xs:annotation", "", "xs:documentation xs:appinfo"),
    ("xs:documentation", "", ""), ("xs:appinfo", "", "jed:field jed:gui jed:parameterSet"),
    ("jed:field", "label unit help default", ""), ("jed:gui", "text", ""), ("jed:parameterSet", "name label", ""),
    ("xs:element", "name type minOccurs maxOccurs", "xs:annotation"),
    ("xs:complexType", "name", "xs:annotation xs:sequence xs:choice xs:attribute"),
    ("xs:sequence", "", "xs:annotation xs:element"), ("xs:choice", "", "xs:annotation xs:element"),
    ("xs:attribute", "name type use default", "xs:annotation"),
    ("xs:simpleType", "name", "xs:annotation xs:restriction"),
    ("xs:restriction", "base", "xs:enumeration xs:minInclusive xs:maxInclusive"),
    ("xs:enumeration", "value", "xs:annotation"), ("xs:minInclusive", "value", ""), ("xs:maxInclusive", "value", ""))}
KINDS = {"xs:boolean": "Boolean", "xs:int": "Int", "xs:long": "Long", "xs:float": "Float", "xs:double": "Double",
         "xs:string": "String", "xs:dateTime": "DateTime"}
INTEGER_LIMITS = {"Int": 2 ** 31, "Long": 2 ** 63}
VALUES = {("minOccurs", "0"), ("minOccurs", "1"), ("maxOccurs", "1"), ("maxOccurs", "unbounded"),
          ("use", "optional"), ("use", "required"), ("elementFormDefault", "unqualified")}
# What the base class of all elements offers, and words of C++ that could be the name of a class or an enumeration.
BASE_OPERATIONS = set("""SetXmlString GetXmlString SetValidate GetValidate GetCheckLine GetCheckColumn GetCheckReason
    GetInitialVersionLoaded""".split())
KEYWORDS = set("""auto bool break case char class const continue default delete do double else enum explicit export
    extern false float for friend goto if inline int long namespace new operator private protected public register
    return short signals signed slots static struct switch template this true typedef union unsigned using virtual void
    volatile while""".split())


class SchemaError(Exception):
    """A construct outside the subset, with the place where it stands."""


def need(condition, node, reason, *values):
    if not condition:
        raise SchemaError("%s:%d: %s" % (node.file, node.line, reason % values))


class Node:
    """One element of a schema file."""
    def __init__(self, file, line, tag="", attributes=()):
        self.file, self.line, self.tag, self.attributes = file, line, tag, dict(attributes)
        self.children, self.texts = [], []

    def get(self, name, default=None):
        return self.attributes.get(name, default)

    def all(self, *tags):
        return [child for child in self.children if child.tag in tags]

    def one(self, *tags):
        """The child of one of these names, or None; a second one is an error."""
        found = self.all(*tags)
        need(len(found) < 2, found[-1] if found else self, "only one %s is supported here", " or ".join(tags))
        return found[0] if found else None

    def info(self, tag):
        """The entries of that name in the element's annotation."""
        return [entry for annotation in self.all("xs:annotation")
                for part in [annotation] + annotation.all("xs:appinfo") for entry in part.all(tag)]

    def documentation(self):
        return " ".join(" ".join(text for entry in self.info("xs:documentation") for text in entry.texts).split())

    def needed(self, name):
        need(name in self.attributes, self, "%s without %s", self.tag, name)
        return self.attributes[name]

    def name(self):
        need(re.fullmatch("[A-Za-z][A-Za-z0-9_]*", self.needed("name")), self, "\"%s\" is no name for code",
             self.get("name"))
        return self.get("name")


def parse(path):
    """Reads a file into nodes and refuses every tag, attribute and text that is not known."""
    file = os.path.basename(path)
    parser = expat.ParserCreate(namespace_separator=" ")
    stack = [Node(file, 1)]

    def start(name, attributes):
        space, _, local = name.rpartition(" ")
        tag = {XS: "xs:", JED: "jed:"}.get(space, space + ":") + local
        node = Node(file, parser.CurrentLineNumber, tag, attributes)
        allowed = KNOWN[stack[-1].tag][1] if stack[-1].tag else {"xs:schema"}
        need(tag in allowed, node, "%s is not supported here", tag)
        for attribute, value in attributes.items():
            need(attribute in KNOWN[tag][0], node, "attribute %s of %s is not supported", attribute, tag)
            need((attribute, value) in VALUES or attribute not in dict(VALUES), node, "%s=\"%s\" is not supported",
                 attribute, value)
        stack[-1].children.append(node)
        stack.append(node)

    def end(_):
        node = stack.pop()
        need(node.tag == "xs:documentation" or not "".join(node.texts).strip(), node, "%s holds a text", node.tag)

    parser.StartElementHandler = start
    parser.EndElementHandler = end
    parser.CharacterDataHandler = lambda text: stack[-1].texts.append(text)
    try:
        with open(path, "rb") as source:
            parser.ParseFile(source)
    except expat.ExpatError as error:
        need(False, Node(file, error.lineno), "%s", expat.errors.messages[error.code])
    return stack[0].children[0]


class Simple:
    """A simple type: built in, restricted in its range, or an enumeration."""
    def __init__(self, name, kind, node=None):
        self.name, self.kind, self.node, self.values, self.minimum, self.maximum = name, kind, node, [], None, None

    @staticmethod
    def read(node):
        restriction = node.one("xs:restriction")
        need(restriction, node, "xs:simpleType without xs:restriction")
        base = restriction.needed("base")
        need(base in KINDS and base not in ("xs:boolean", "xs:dateTime"), restriction,
             "a restriction of %s is not supported", base)
        result = Simple(node.name(), KINDS[base], node)
        for entry in restriction.children:
            text = entry.needed("value")
            need((base == "xs:string") == (entry.tag == "xs:enumeration"), entry, "%s does not fit %s", entry.tag, base)
            if base == "xs:string":
                need(text.strip() and text.isascii(), entry, "\"%s\" is no value for an enumeration", text)
                need(text not in dict(result.values), entry, "second value \"%s\"", text)
                gui = entry.info("jed:gui")
                result.values.append((text, gui[0].needed("text") if gui else text))
            else:
                setattr(result, entry.tag[3:6] + "imum", result.number(entry, text))
        need(None in (result.minimum, result.maximum) or float(result.minimum) <= float(result.maximum), restriction,
             "the minimum is above the maximum")
        result.kind = "Enumeration" if result.values else result.kind
        return result

    def number(self, node, text):
        """The text of a number of this kind, checked: it becomes code."""
        form = "-?[0-9]+" if self.kind in INTEGER_LIMITS else r"-?[0-9]+(\.[0-9]+)?([eE][-+]?[0-9]+)?"
        need(re.fullmatch(form, text) and abs(float(text)) < INTEGER_LIMITS.get(self.kind, 1e300), node,
             "\"%s\" is no number of this type", text)
        return str(int(text)) if self.kind in INTEGER_LIMITS else repr(float(text))

    def default(self, node, text):
        """The default as a number in code; 0 for a text."""
        if self.kind in ("String", "DateTime"):
            return "0"
        if self.kind in ("Enumeration", "Boolean"):
            names = [name for name, _ in self.values] or ["false", "true"]
            need(text in names, node, "default \"%s\" is not one of %s", text, ", ".join(names))
            return str(names.index(text))
        number, low, high = self.number(node, text), self.minimum or "-inf", self.maximum or "inf"
        need(float(low) <= float(number) <= float(high), node, "default %s is outside %s to %s", text, low, high)
        return number


class Field:
    """One attribute or child element of a class."""
    def __init__(self, node, owner, types):
        self.node, self.name, self.owner, self.attribute = node, node.name(), owner, node.tag == "xs:attribute"
        need(node.needed("type") in types, node, "type %s is not known", node.get("type"))
        self.type = types[node.get("type")]
        self.complex = isinstance(self.type, Class)
        self.kind = "Element" if self.complex else self.type.kind
        self.list = node.get("maxOccurs") == "unbounded"
        self.required = node.get("use") == "required" if self.attribute else node.get("minOccurs") != "0"
        need(not self.attribute or not self.complex, node, "an attribute of a complex type")
        if owner.choice and not self.attribute:
            need(self.complex and not {"minOccurs", "maxOccurs"} & set(node.attributes), node,
                 "an alternative must be one element of a complex type")
            self.required = False
        info = (node.info("jed:field") or [Node(node.file, node.line)])[0]
        self.label, self.unit, self.help = info.get("label"), info.get("unit"), info.get("help")
        given = [text for text in (node.get("default"), info.get("default")) if text is not None]
        excess = len(given) > 1 or self.list or self.complex or (node.get("default") and self.required)
        need(not given or not excess, node, "a default is not supported here")
        self.default = given[0] if given else None
        self.default_number = self.type.default(node, given[0]) if given else None

    def enumerators(self):
        values = self.type.values if self.kind == "Enumeration" else []
        return [self.name.upper() + "_" + re.sub("[^A-Z0-9]+", "_", value.upper()) for value, _ in values]

    def operations(self):
        """Names in the class, which must not meet those of another field."""
        names = "Get{0} Set{0} Is{0}Set Reset{0} Append{0}" if self.list else "Get{0} Set{0} Is{0}Set Reset{0}"
        if self.kind == "Enumeration":
            names += " {0} {0}ToName NameTo{0} Get{0}s GetGUI{0}s"
        return names.format(self.name).split() + self.enumerators()


class Class:
    """A complex type, and the class made of it."""
    def __init__(self, node):
        content = node.one("xs:sequence", "xs:choice")
        self.node, self.name, self.fields = node, node.name(), []
        self.choice = content is not None and content.tag == "xs:choice"
        self.sets = [(entry.needed("name"), entry.get("label")) for entry in node.info("jed:parameterSet")]
        self.members = node.all("xs:attribute") + (content.all("xs:element") if content else [])
        need(self.name not in KEYWORDS, node, "%s is a word of C++", self.name)
        need(not self.choice or content.children, node, "a choice without alternatives")

    def read_fields(self, types):
        taken = BASE_OPERATIONS | {"GetChoice" + self.name, "Choice%sToName" % self.name}
        for member in self.members:
            field = Field(member, self, types)
            need(field.name != self.name and not (field.kind == "Enumeration" and field.name in KEYWORDS), member,
                 "%s cannot be the name of a field here", field.name)
            for operation in field.operations():
                need(operation not in taken, member, "%s of %s exists already", operation, self.name)
                taken.add(operation)
            self.fields.append(field)
        need(len(self.fields) <= 64, self.node, "%s has more than 64 fields", self.name)


class Schema:
    """One schema file."""
    def __init__(self, path):
        self.node = parse(path)
        self.file, self.included = self.node.file, []
        self.stem = os.path.splitext(self.file)[0]
        self.version, self.root = self.node.get("version"), self.node.one("xs:element")
        self.classes = [Class(node) for node in self.node.all("xs:complexType")]
        self.simples = [Simple.read(node) for node in self.node.all("xs:simpleType")]

    def include(self, schemas):
        for node in self.node.all("xs:include"):
            other = schemas.get(node.needed("schemaLocation"))
            need(other, node, "%s is not among the given schemas", node.get("schemaLocation"))
            need(not other.node.all("xs:include"), node, "%s includes others itself", other.file)
            self.included.append(other)

    def read_classes(self, all_types):
        """Looks up what the fields refer to; only types of this file and of the included ones count."""
        own = [entry for part in self.included + [self] for entry in part.simples + part.classes]
        types = {name: all_types[name] for name in [*KINDS, *(entry.name for entry in own)]}
        for entry in self.classes:
            entry.read_fields(types)
        if self.root is not None:
            need(self.root.name() and isinstance(types.get(self.root.needed("type")), Class), self.root,
                 "the root must be of a complex type")


def need_end(entry, user, users):
    """No class may contain itself, directly or through others."""
    need(entry not in users, user, "type %s contains itself", entry.name)
    for field in entry.fields:
        if field.complex:
            need_end(field.type, field.node, users + [entry])


def read(paths):
    """Reads schemas that may include each other; those that are included come first."""
    schemas = {schema.file: schema for schema in map(Schema, paths)}
    types = {name: Simple(name, kind) for name, kind in KINDS.items()}
    for schema in schemas.values():
        schema.include(schemas)
        for entry in schema.simples + schema.classes:
            need(entry.name not in types, entry.node, "second type %s", entry.name)
            types[entry.name] = entry
    result = sorted(schemas.values(), key=lambda schema: len(schema.included))
    for schema in result:
        schema.read_classes(types)
    for entry in (entry for schema in result for entry in schema.classes):
        need_end(entry, entry.node, [])
    return result
