"""One job file as text, in the layout of the installation's own writer."""
from xml.sax.saxutils import escape

from fieldtables import SimpleType
from tunerfile import initial, number, values_of

# Where a parameter set stands in a sub-job. The others are in the settings block, under the name of their type.
BESIDE_THE_SETTINGS = {"ActivityGeneration", "AutoRecordingSettings", "CompressionSettings"}
# A job file has no place for these.
WITHOUT_PLACE = {"ActivityDetectionSettings", "StorageSettings"}
# Groups that the job file does not take from a receiver.
NOT_TAKEN = {"DSCSettings": ("PriorityCriteria", "ProduceCriteria", "SpectralDetectorSettings")}


def text(schema, receivers, job):
    content = {"JobInformation": job["information"],
               "Subjob": [subjob(schema, receivers, row) for row in job["subjobs"]]}
    lines = ['<?xml version="1.0" encoding="UTF-8"?>', '<Job version="1.2">']
    lines += members(schema, "Job", content, "  ")
    return "\n".join(lines) + "\n</Job>\n"


def subjob(schema, receivers, row):
    kind, base = row["resource"]
    receiver = next(r for r in receivers if (r["type"], r["base"]) == (kind, base))
    resource = {"Type": kind, "BaseResource": base, "Name": receiver["name"]}
    if "record" in row:
        resource["RecordLocation"] = row["record"]
    if row["mode"] not in receiver.get("modes", [row["mode"]]):
        raise ValueError(f"{receiver['file']} offers no {row['mode']}")
    content = {"Name": row["name"], "StartupMode": row["mode"], "ResourceDescription": resource,
               "Detector": row.get("detectors", []), "Settings": dict(row.get("settings", {}))}
    changes = dict(row.get("values", {}))
    for name, sets in receiver["components"]:
        if name in row.get("without", ()):
            if name not in receiver.get("optional", ()):
                raise ValueError(f"{receiver['file']}: {name} is not optional")
            continue
        for set_name in sets:
            if set_name not in WITHOUT_PLACE:
                place = content if set_name in BESIDE_THE_SETTINGS else content["Settings"]
                place[schema.sets[set_name]] = parameter_set(schema, receiver, set_name, sets[set_name], changes)
    if changes:
        raise ValueError(f"{row['name']}: no value {', '.join(changes)}")
    return content


def parameter_set(schema, receiver, set_name, values, changes):
    content = {}
    for path, field, value in values_of(schema, receiver, set_name, values):
        groups = path.split(".")
        single = changes.pop(f"{set_name}/{path}", initial(receiver, field, value))
        if groups[0] in NOT_TAKEN.get(set_name, ()) or single == "" and field.type.name == "xs:dateTime":
            continue
        place = content
        for group in groups[:-1]:
            place = place.setdefault(group, {})
        place[groups[-1]] = single
    return content


def members(schema, type_name, content, indent):
    """What is given, and what a file must have, in the order of the schema."""
    unknown = set(content) - {field.name for field in schema.complex[type_name]}
    if unknown:
        raise ValueError(f"{type_name} has no {', '.join(sorted(unknown))}")
    for field in schema.complex[type_name]:
        value = content.get(field.name)
        if value is None and (field.optional or field.many):
            continue
        for single in value if isinstance(value, list) else [value]:
            yield from element(schema, field, single, indent)


def element(schema, field, value, indent):
    if isinstance(field.type, SimpleType):
        plain = escape(field.default if value is None else number(value))
        yield f"{indent}<{field.name}>{plain}</{field.name}>" if plain else f"{indent}<{field.name}/>"
        return
    content = list(members(schema, field.type, value or {}, indent + "  "))
    if content:
        yield f"{indent}<{field.name}>"
        yield from content
        yield f"{indent}</{field.name}>"
    else:
        yield f"{indent}<{field.name}/>"
