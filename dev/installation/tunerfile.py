"""One tuner property file as text."""
from xml.sax.saxutils import quoteattr

HEAD = '<?xml version="1.0" encoding="UTF-8"?>\n<!-- Made by dev/make-installation -->\n'
PLAIN = {"boolean": "ValueBoolean", "int": "ValueInt", "long": "ValueInt64", "double": "ValueFloat",
         "string": "ValueString"}
NUMERIC = {"int": "ValueNumericInt", "long": "ValueNumericInt64", "double": "ValueNumericFloat"}
# Range and step that a receiver offers for a type where its table says nothing else. Frequencies and bandwidths
# come from the receiver's own band.
RANGES = {
    "OffsetType": (-100000, 100000, 1), "RateType": (8000, 4000000, 1), "TimeType": (0, 3600000, 1),
    "LongTimeType": (0, 31622400000, 1000), "LevelType": (-20, 120, 0.5), "DecibelType": (-30, 130, 0.5),
    "AttenuationType": (0, 40, 5), "PercentType": (0, 100, 1), "AzimuthType": (0, 360, 0.5),
    "AngleType": (-90, 90, 0.5), "LongitudeType": (-180, 180, 0.001), "LatitudeType": (-90, 90, 0.001),
    "CountType": (0, 1000, 1), "ChannelCountType": (0, 32, 1), "PriorityType": (1, 10, 1),
    "SymbolRateType": (10, 90000, 0), "HopRateType": (0, 2000, 1), "RatioType": (1, 20, 0.5),
    "ProbabilityType": (0, 0.5, 0), "CorrectionType": (-20, 20, 0.125), "xs:long": (1048576, 1099511627776, 1048576),
}


class Choice:
    """A selection: names of an enumeration, or numbers; the one at index is the default."""

    def __init__(self, *items, index=0):
        self.items, self.index = items, index


class Plain:
    """A number without a range."""

    def __init__(self, value):
        self.value = value


class Texts(tuple):
    """A list of texts."""


def text(schema, receiver):
    lines = [HEAD + "<TunerProperties" + attributes(
        name=receiver["name"], type=receiver["type"], baseresource=receiver["base"],
        parentBaseResource=receiver.get("parent"), connectableResources=receiver.get("connectable"),
        quantity=receiver["quantity"], version="1.2") + ">"]
    if receiver.get("modes"):
        lines.append("  <StartupModes>")
        lines += [f"    <StartupMode>{mode}</StartupMode>" for mode in receiver["modes"]]
        lines.append("  </StartupModes>")
    for name, sets in receiver["components"]:
        optional = name in receiver.get("optional", ())
        lines.append("  <Component" + attributes(type=name, name=name, optional="true" if optional else None) + ">")
        for set_name, values in sets.items():
            lines.append("    <Node" + attributes(id=set_name) + ">")
            lines += node(schema, receiver, set_name, values)
            lines.append("    </Node>")
        lines.append("  </Component>")
    return "\n".join(lines) + "\n</TunerProperties>\n"


def values_of(schema, receiver, set_name, values):
    """Path, field and value of all that the receiver offers of the set; a value of None leaves a field out."""
    fields = dict(schema.fields(schema.sets[set_name]))
    unknown = set(values) - set(fields)
    if unknown:
        raise ValueError(f"{receiver['file']}: {set_name} has no field {', '.join(sorted(unknown))}")
    for path, field in fields.items():
        value = values.get(path, default(field))
        if value is not None:
            yield path, field, value


def node(schema, receiver, set_name, values):
    for path, field, value in values_of(schema, receiver, set_name, values):
        yield "      <ValueItem>"
        yield from ("        " + line for line in item(receiver, path, field, value))
        yield "      </ValueItem>"


def default(field):
    kind = field.type.kind
    if field.many:
        return Texts()
    if kind == "enumeration":
        return Choice(*field.type.names, index=field.type.names.index(field.default))
    if kind == "boolean":
        return field.default == "true"
    if kind == "string":
        return field.default or ""
    return float(field.default)


def initial(receiver, field, value):
    """What a new sub-job has: one text, or the texts of a list."""
    if isinstance(value, Texts):
        return [str(text) for text in value]
    if isinstance(value, Choice):
        return number(value.items[value.index])
    if isinstance(value, Plain):
        return number(value.value)
    if field.type.kind in NUMERIC:
        return number(with_range(receiver, field.type, value)[0])
    return number(value)


def item(receiver, path, field, value):
    if isinstance(value, Texts):
        yield "<ValueStringList" + attributes(id=path) + (">" if value else "/>")
        yield from ("  <StringItem" + attributes(value=number(v)) + "/>" for v in value)
        if value:
            yield "</ValueStringList>"
    elif isinstance(value, Choice):
        yield "<ValueSelection" + attributes(id=path, index=value.index) + ">"
        yield from selection_items(field.type, value)
        yield "</ValueSelection>"
    elif isinstance(value, Plain):
        yield f"<{PLAIN[field.type.kind]}" + attributes(id=path, value=number(value.value)) + "/>"
    elif field.type.kind == "enumeration":
        names = field.type.names
        yield from item(receiver, path, field, Choice(*names, index=names.index(value)))
    elif field.type.kind in NUMERIC:
        yield numeric(receiver, path, field.type, value)
    else:
        yield f"<{PLAIN[field.type.kind]}" + attributes(id=path, value=number(value)) + "/>"


def selection_items(kind, choice):
    for name in choice.items:
        value = kind.names.index(name) if kind.kind == "enumeration" else name
        yield "  <SelectionItem" + attributes(name=number(name), value=number(value)) + "/>"


def numeric(receiver, path, kind, value):
    value, low, high, step = with_range(receiver, kind, value)
    inside = (kind.low is None or kind.low <= low) and (kind.high is None or high <= kind.high)
    if not low <= value <= high or not inside:
        raise ValueError(f"{receiver['file']}: {path} = {value} in {low} .. {high} does not fit the schema or itself")
    return f"<{NUMERIC[kind.kind]}" + attributes(id=path, value=number(value), min=number(low), max=number(high),
                                                 step=number(step)) + "/>"


def with_range(receiver, kind, value):
    if isinstance(value, tuple):
        return value
    low, high, step = range_of(receiver, kind)
    if kind.name in ("FrequencyType", "BandwidthType"):
        value = min(max(value, low), high)
    return value, low, high, step


def range_of(receiver, kind):
    if kind.name == "FrequencyType":
        return (*receiver["band"], 1)
    if kind.name == "BandwidthType":
        return (0, receiver["width"], 1)
    return RANGES[kind.name] if kind.name in RANGES else (kind.low, kind.high, 1)


def number(value):
    if isinstance(value, bool):
        return "true" if value else "false"
    if isinstance(value, float) and value.is_integer():
        return str(int(value))
    return str(value)


def attributes(**values):
    return "".join(f" {name}={quoteattr(str(value))}" for name, value in values.items() if value is not None)
