"""What the generator of the element classes accepts, writes and refuses."""

import contextlib
import io
import os
import sys
import tempfile
import unittest

sys.dont_write_bytecode = True
sys.path.insert(0, os.path.join(os.environ["JED_SOURCE_DIR"], "platform", "generator"))
import generate  # noqa: E402
import schemamodel  # noqa: E402

HEAD = '<xs:schema xmlns:xs="%s" xmlns:jed="%s" version="1.2">\n' % (schemamodel.XS, schemamodel.JED)
TAIL = "\n</xs:schema>\n"


def field(attributes, inner=""):
    return '<xs:complexType name="C">\n<xs:sequence>\n<xs:element %s>%s</xs:element>\n</xs:sequence></xs:complexType>' % (
        attributes, inner)


def attribute(attributes, inner=""):
    return '<xs:complexType name="C">\n<xs:attribute %s>%s</xs:attribute></xs:complexType>' % (attributes, inner)


def simple(base, inner):
    return '<xs:simpleType name="S">\n<xs:restriction base="%s">\n%s</xs:restriction></xs:simpleType>' % (base, inner)


def values(*names):
    return "".join('<xs:enumeration value="%s"/>\n' % name for name in names)


def info(entry):
    return "<xs:annotation><xs:appinfo>%s</xs:appinfo></xs:annotation>" % entry


ENUMERATION = simple("xs:string", values("On", "Off")) + "\n"
# Line 1 holds xs:schema, so the body begins in line 2.
REFUSED = [
    ("unknown construct", "<xs:group/>", 2, "xs:group is not supported here"),
    ("construct at another place", "<xs:enumeration value='a'/>", 2, "xs:enumeration is not supported here"),
    ("construct of another namespace", "<a:b xmlns:a='urn:a'/>", 2, "urn:a:b is not supported here"),
    ("unknown attribute", '\n<xs:complexType name="C" mixed="true"/>', 3,
     "attribute mixed of xs:complexType is not supported"),
    ("qualified elements", None, 1, 'elementFormDefault="qualified" is not supported'),
    ("text between constructs", "<xs:complexType name='C'>text</xs:complexType>", 2, "xs:complexType holds a text"),
    ("anonymous type", "<xs:element name='e'><xs:complexType/></xs:element>", 2,
     "xs:complexType is not supported here"),
    ("type without a name", "<xs:complexType/>", 2, "xs:complexType without name"),
    ("name with a dot", '<xs:complexType name="a.b"/>', 2, '"a.b" is no name for code'),
    ("class named by a word of C++", '<xs:complexType name="class"/>', 2, "class is a word of C++"),
    ("second type of a name", '<xs:complexType name="C"/>\n<xs:complexType name="C"/>', 3, "second type C"),
    ("second root", '<xs:complexType name="C"/><xs:element name="a" type="C"/>\n<xs:element name="b" type="C"/>', 3,
     "only one xs:element is supported here"),
    ("simple root", '<xs:element name="a" type="xs:int"/>', 2, "the root must be of a complex type"),
    ("sequence and choice", '<xs:complexType name="C"><xs:sequence/>\n<xs:choice/></xs:complexType>', 3,
     "only one xs:sequence or xs:choice is supported here"),
    ("nested groups", '<xs:complexType name="C"><xs:sequence>\n<xs:choice/></xs:sequence></xs:complexType>', 3,
     "xs:choice is not supported here"),
    ("choice without alternatives", '<xs:complexType name="C"><xs:choice/></xs:complexType>', 2,
     "a choice without alternatives"),
    ("simple alternative", '<xs:complexType name="C"><xs:choice>\n<xs:element name="a" type="xs:int"/></xs:choice>'
     "</xs:complexType>", 3, "an alternative must be one element of a complex type"),
    ("repeated alternative", '<xs:complexType name="D"/><xs:complexType name="C"><xs:choice>\n<xs:element name="a" '
     'type="D" maxOccurs="unbounded"/></xs:choice></xs:complexType>', 3,
     "an alternative must be one element of a complex type"),
    ("unknown type", field('name="a" type="T"'), 4, "type T is not known"),
    ("built-in type outside the subset", field('name="a" type="xs:decimal"'), 4, "type xs:decimal is not known"),
    ("field without a type", field('name="a"'), 4, "xs:element without type"),
    ("more than one, but bounded", field('name="a" type="xs:int" maxOccurs="3"'), 4, 'maxOccurs="3" is not supported'),
    ("at least two", field('name="a" type="xs:int" minOccurs="2"'), 4, 'minOccurs="2" is not supported'),
    ("prohibited attribute", attribute('name="a" type="xs:int" use="prohibited"'), 3,
     'use="prohibited" is not supported'),
    ("attribute of a complex type", attribute('name="a" type="C"'), 3, "an attribute of a complex type"),
    ("type that contains itself", '<xs:complexType name="D"><xs:sequence>\n<xs:element name="c" type="C"/>'
     "</xs:sequence></xs:complexType>\n" + field('name="d" type="D"'), 6, "type D contains itself"),
    ("field named like its class", field('name="C" type="xs:int"'), 4, "C cannot be the name of a field here"),
    ("enumeration named by a word of C++", ENUMERATION + field('name="default" type="S"'), 9,
     "default cannot be the name of a field here"),
    ("two fields of a name", attribute('name="a" type="xs:int"/>\n<xs:attribute name="a" type="xs:int"'), 4,
     "Geta of C exists already"),
    ("enumeration list beside a field", ENUMERATION + attribute('name="Mode" type="S"/>\n<xs:attribute name="Modes" '
     'type="xs:int"'), 9, "GetModes of C exists already"),
    ("enumerators of one name", simple("xs:string", values("a b", "a-b")) + "\n" + attribute('name="Mode" type="S"'), 8,
     "MODE_A_B of C exists already"),
    ("field named like an operation of all elements", attribute('name="XmlString" type="xs:int"'), 3,
     "GetXmlString of C exists already"),
    ("65 fields", '\n<xs:complexType name="C">' + "".join('<xs:attribute name="a%d" type="xs:int"/>' % i for i in
                                                         range(65)) + "</xs:complexType>", 3,
     "C has more than 64 fields"),
    ("two defaults", attribute('name="a" type="xs:int" default="1"', info('<jed:field default="1"/>')), 3,
     "a default is not supported here"),
    ("default of a list", field('name="a" type="xs:int" maxOccurs="unbounded"', info('<jed:field default="1"/>')), 4,
     "a default is not supported here"),
    ("schema default of a required attribute", attribute('name="a" type="xs:int" use="required" default="1"'), 3,
     "a default is not supported here"),
    ("default that is no number", attribute('name="a" type="xs:int" default="x"'), 3, '"x" is no number of this type'),
    ("default outside the range", simple("xs:int", '<xs:maxInclusive value="5"/>') + "\n"
     + attribute('name="a" type="S" default="6"'), 6, "default 6 is outside -inf to 5"),
    ("default outside the enumeration", ENUMERATION + attribute('name="a" type="S" default="Of"'), 8,
     'default "Of" is not one of On, Off'),
    ("default that is no boolean", attribute('name="a" type="xs:boolean" default="1"'), 3,
     'default "1" is not one of false, true'),
    ("simple type without restriction", '<xs:simpleType name="S"/>', 2, "xs:simpleType without xs:restriction"),
    ("restricted boolean", simple("xs:boolean", ""), 3, "a restriction of xs:boolean is not supported"),
    ("restriction of a named type", simple("T", ""), 3, "a restriction of T is not supported"),
    ("pattern", simple("xs:string", '<xs:pattern value="a*"/>'), 4, "xs:pattern is not supported here"),
    ("range of a text", simple("xs:string", '<xs:minInclusive value="1"/>'), 4,
     "xs:minInclusive does not fit xs:string"),
    ("enumeration of numbers", simple("xs:int", values("1")), 4, "xs:enumeration does not fit xs:int"),
    ("value given twice", simple("xs:string", values("a", "a")), 5, 'second value "a"'),
    ("empty value", simple("xs:string", values("")), 4, '"" is no value for an enumeration'),
    ("value with other letters", simple("xs:string", values("\u00e4")), 4, '"\u00e4" is no value for an enumeration'),
    ("limit that is no number", simple("xs:int", '<xs:minInclusive value="1.5"/>'), 4,
     '"1.5" is no number of this type'),
    ("limit outside the type", simple("xs:int", '<xs:minInclusive value="2147483648"/>'), 4,
     '"2147483648" is no number of this type'),
    ("empty range", simple("xs:int", '<xs:minInclusive value="2"/>\n<xs:maxInclusive value="1"/>'), 3,
     "the minimum is above the maximum"),
    ("unknown annotation", field('name="a" type="xs:int"', info("<jed:colour/>")), 4,
     "jed:colour is not supported here"),
    ("GUI text without a text", simple("xs:string", '<xs:enumeration value="a">%s</xs:enumeration>' % info("<jed:gui/>")),
     4, "jed:gui without text"),
    ("parameter set without a name", '<xs:complexType name="C">\n%s</xs:complexType>' % info("<jed:parameterSet/>"), 3,
     "jed:parameterSet without name"),
    ("include of something not given", '<xs:include schemaLocation="other.xsd"/>', 2,
     "other.xsd is not among the given schemas"),
    ("no XML", "<xs:complexType", 3, "not well-formed (invalid token)"),
]


class Folder(unittest.TestCase):
    """A folder for schemas and for what is made of them."""

    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.folder = folder.name

    def write(self, name, text):
        path = os.path.join(self.folder, name)
        with open(path, "w", encoding="utf-8") as file:
            file.write(text)
        return path

    def schema(self, body, name="test.xsd"):
        return self.write(name, HEAD + body + TAIL)

    def generated(self, *paths):
        generate.main(["--namespace", "N", "--library", "lib", "--output", self.folder, *paths])
        texts = {}
        for path in paths:
            for ending in (".h", ".cpp"):
                with open(os.path.splitext(path)[0] + ending, encoding="utf-8") as file:
                    texts[os.path.basename(file.name)] = file.read()
        return texts

    def message(self, *paths):
        with self.assertRaises(schemamodel.SchemaError) as caught:
            schemamodel.read(paths)
        return str(caught.exception)


class Refused(Folder):
    def test_each_construct_outside_the_subset_is_named_with_file_and_line(self):
        for name, body, line, reason in REFUSED:
            with self.subTest(name):
                path = self.schema(body or "")
                if body is None:
                    path = self.write("test.xsd", HEAD.replace(" version", ' elementFormDefault="qualified" version') + TAIL)
                self.assertEqual(self.message(path), "test.xsd:%d: %s" % (line, reason))

    def test_includes_go_one_level_deep(self):
        paths = [self.schema("<xs:include schemaLocation='b.xsd'/>", "a.xsd"),
                 self.schema("<xs:include schemaLocation='c.xsd'/>", "b.xsd"), self.schema("", "c.xsd")]
        self.assertEqual(self.message(*paths), "a.xsd:2: b.xsd includes others itself")

    def test_a_type_of_a_file_that_is_not_included_is_unknown(self):
        paths = [self.schema('<xs:complexType name="D"/>', "d.xsd"), self.schema(field('name="d" type="D"'), "c.xsd")]
        self.assertEqual(self.message(*paths), "c.xsd:4: type D is not known")

    def test_the_program_ends_with_the_message_and_writes_nothing(self):
        path = self.schema("<xs:group/>")
        with self.assertRaises(SystemExit) as caught, contextlib.redirect_stderr(io.StringIO()):
            self.generated(path)
        self.assertEqual(caught.exception.code, "test.xsd:2: xs:group is not supported here")
        self.assertEqual(os.listdir(self.folder), ["test.xsd"])


class Written(Folder):
    def test_a_field_gets_the_operations_of_its_kind_with_a_comment(self):
        body = simple("xs:double", '<xs:minInclusive value="-20"/>\n<xs:maxInclusive value="130"/>') + field(
            'name="Threshold" type="S"',
            info('<jed:field label="Threshold" unit="dB\u00b5V" default="6.5" help="Opens above it."/>'))
        header = self.generated(self.schema(body))["test.h"]
        self.assertIn("    /// Threshold (dB\u00b5V); from -20.0 to 130.0; required; default 6.5. Opens above it.\n"
                      "    double GetThreshold() const;\n    void SetThreshold(double value);\n"
                      "    bool IsThresholdSet() const;\n    void ResetThreshold();\n};\n", header)

    def test_the_row_of_a_field_holds_all_that_the_schema_says(self):
        body = simple("xs:int", '<xs:minInclusive value="-1"/>') + attribute(
            'name="a" type="S" use="required"',
            info('<jed:field label="&quot;A&quot;" unit="Hz" default="5" help="b\\c"/>'))
        source = self.generated(self.schema(body))["test.cpp"]
        self.assertIn('Field("a", FieldKind::Int).with(&Field::attribute, true).with(&Field::required, true)'
                      '.with(&Field::context, "N").with(&Field::labelText, QT_TRANSLATE_NOOP("N", "\\"A\\""))'
                      '.with(&Field::unitText, "Hz").with(&Field::helpText, QT_TRANSLATE_NOOP("N", "b\\\\c"))'
                      '.with(&Field::defaultText, "5").with(&Field::defaultInteger, 5)'
                      ".with(&Field::hasMinimum, true).with(&Field::minimumInteger, -1),", source)

    def test_an_included_type_is_made_once_and_used_by_its_header(self):
        texts = self.generated(self.schema('<xs:include schemaLocation="d.xsd"/>' + field('name="d" type="D"'), "c.xsd"),
                               self.schema('<xs:complexType name="D"/>', "d.xsd"))
        self.assertIn("#include <lib/d.h>\n", texts["c.h"])
        self.assertIn("class LIB_EXPORT D :", texts["d.h"])
        self.assertNotIn("class LIB_EXPORT D :", texts["c.h"])
        self.assertNotIn("constexpr ElementTable D ", texts["c.cpp"])

    def test_the_schema_text_holds_included_types_and_no_annotations(self):
        source = self.generated(
            self.schema('<xs:include schemaLocation="d.xsd"/>' + field('name="d" type="D"', info("<jed:field/>"))
                        + '<xs:element name="c" type="C"/>', "c.xsd"),
            self.schema('<xs:complexType name="D"/><xs:element name="d" type="D"/>', "d.xsd"))["c.cpp"]
        lines = source[source.index("SCHEMA_LINES[]"):source.index("constexpr SchemaText")].split("\n")[1:-2]
        self.assertEqual([line.strip()[1:-2].replace('\\"', '"') for line in lines], [
            '<xs:schema xmlns:xs="http://www.w3.org/2001/XMLSchema">', '<xs:complexType name="D"/>',
            '<xs:complexType name="C">', "<xs:sequence>", '<xs:element name="d" type="D"/>', "</xs:sequence>",
            "</xs:complexType>", '<xs:element name="c" type="C"/>', "</xs:schema>"])

    def test_64_fields_are_accepted(self):
        body = '<xs:complexType name="C">%s</xs:complexType>' % "".join(
            '<xs:attribute name="a%d" type="xs:int"/>' % i for i in range(64))
        self.assertIn("C_FIELDS, 64,", self.generated(self.schema(body))["test.cpp"])

    def test_the_same_input_gives_the_same_output(self):
        body = ENUMERATION + field('name="a" type="S"') + '<xs:element name="c" type="C"/>'
        self.assertEqual(self.generated(self.schema(body)), self.generated(self.schema(body)))


class Size(unittest.TestCase):
    def test_the_generator_stays_small(self):
        folder = os.path.join(os.environ["JED_SOURCE_DIR"], "platform", "generator")
        count = 0
        for name in os.listdir(folder):
            if name.endswith(".py"):
                with open(os.path.join(folder, name), encoding="utf-8") as file:
                    count += len(file.readlines())
        self.assertLessEqual(count, 500)


if __name__ == "__main__":
    unittest.main()
