"""What the makers of data need to know of a schema: the parameter sets, their fields and the types of these."""
import os
import xml.etree.ElementTree as ElementTree
from collections import namedtuple

XS = "{http://www.w3.org/2001/XMLSchema}"
JED = "{urn:jobeditorve:field-tables}"

# kind: boolean, int, long, double, string or enumeration; low, high: None where there is no bound
SimpleType = namedtuple("SimpleType", "name kind low high names")
# type: a SimpleType, or the name of a complex type
Field = namedtuple("Field", "name type many optional default")

BUILT_IN = {"xs:boolean": "boolean", "xs:int": "int", "xs:long": "long", "xs:float": "double", "xs:double": "double",
            "xs:string": "string", "xs:dateTime": "string"}


class Schema:
    """A schema and what it includes."""

    def __init__(self, path):
        self.simple = {name: SimpleType(name, kind, None, None, []) for name, kind in BUILT_IN.items()}
        self.complex = {}
        self.sets = {}
        self.read(path)

    def read(self, path):
        root = ElementTree.parse(path).getroot()
        for element in root.findall(XS + "include"):
            self.read(os.path.join(os.path.dirname(path), element.get("schemaLocation")))
        for element in root.findall(XS + "simpleType"):
            self.simple[element.get("name")] = simple_type(element)
        for element in root.findall(XS + "complexType"):
            self.complex[element.get("name")] = [self.field(e) for e in element.iter(XS + "element")]
            mark = element.find(f"{XS}annotation/{XS}appinfo/{JED}parameterSet")
            if mark is not None:
                self.sets[mark.get("name")] = element.get("name")

    def field(self, element):
        mark = element.find(f"{XS}annotation/{XS}appinfo/{JED}field")
        kind = element.get("type")
        return Field(element.get("name"), self.simple.get(kind, kind), element.get("maxOccurs") == "unbounded",
                     element.get("minOccurs") == "0", mark.get("default"))

    def fields(self, type_name, prefix=""):
        """Path and field of all that a value-tree node can hold, in the order of the schema."""
        for field in self.complex[type_name]:
            if isinstance(field.type, SimpleType):
                yield prefix + field.name, field
            elif not field.many:
                yield from self.fields(field.type, prefix + field.name + ".")


def simple_type(element):
    restriction = element.find(XS + "restriction")
    names = [value.get("value") for value in restriction.findall(XS + "enumeration")]
    bound = {name: restriction.find(XS + name) for name in ("minInclusive", "maxInclusive")}
    low, high = (None if b is None else float(b.get("value")) for b in bound.values())
    kind = "enumeration" if names else BUILT_IN[restriction.get("base")]
    return SimpleType(element.get("name"), kind, low, high, names)
