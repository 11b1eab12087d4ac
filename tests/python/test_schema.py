"""The JSON Schema that `odbattr schema` prints: every line of every example fits it, and lines the
tool refuses do not. Checked by a full validator of the schema's own draft."""
import json
import os
import pathlib
import subprocess

import jsonschema
import pytest

TOOL = os.environ.get("QMX_ODBATTR")
EXAMPLES = pathlib.Path(os.environ.get("QMX_EXAMPLES_DIR", pathlib.Path(__file__).parents[2] / "examples"))

pytestmark = pytest.mark.skipif(not TOOL, reason="the odbattr tool is not built")


@pytest.fixture(scope="module")
def schema():
    out = subprocess.run([TOOL, "schema"], check=True, capture_output=True, text=True).stdout
    s = json.loads(out)
    jsonschema.Draft202012Validator.check_schema(s)
    return s


def test_the_schema_states_the_classes_terms(schema):
    ctrl = schema["$defs"]["AdaptiveMeshControl"]["properties"]
    assert ctrl["remapping"]["default"] == "SECOND_ORDER_ADVECTION"
    assert ctrl["remapping"]["anyOf"][0]["enum"] == ["FIRST_ORDER_ADVECTION", "SECOND_ORDER_ADVECTION"]
    assert ctrl["initialFeatureAngle"] == {"type": "number", "default": 30.0,
                                           "description": "Feature angle of the initial geometry (degrees, 0 to 180)"}
    assert schema["x-repositories"]["adaptiveMeshDomains"] == ["AdaptiveMeshDomain"]
    assert schema["x-repositories"]["adaptiveMeshControls"] == ["AdaptiveMeshControl"]


def test_every_line_of_every_example_fits(schema):
    validator = jsonschema.Draft202012Validator(schema)
    checked = 0
    for path in sorted(EXAMPLES.glob("*.jsonl")):
        for number, line in enumerate(path.read_text().splitlines(), 1):
            if not line.strip() or line.lstrip().startswith("#"):
                continue
            errors = [e.message for e in validator.iter_errors(json.loads(line))]
            assert errors == [], f"{path.name}:{number}"
            checked += 1
    assert checked > 10


CONTROL = '"path":["Model-1","adaptiveMeshControls","C-9"]'
DOMAIN = '"path":["Model-1","adaptiveMeshDomains","D-9"]'


@pytest.mark.parametrize("line", [
    '{"op":"create",' + CONTROL + ',"type":"AdaptiveMeshControl","values":{"remapping":"THIRD"}}',
    '{"op":"create",' + CONTROL + ',"type":"AdaptiveMeshControl","values":{"advection":"FIRST_ORDER_ADVECTION"}}',
    '{"op":"create",' + CONTROL + ',"type":"AdaptiveMeshDomain"}',
    '{"op":"create",' + DOMAIN + ',"type":"AdaptiveMeshDomain","values":{"frequency":1.5}}',
    '{"op":"create",' + DOMAIN + ',"type":"AdaptiveMeshDomain","values":{"frequency":3000000000}}',
    '{"op":"get","path":["Model-1"],"file":"x"}',
    '{"op":"explode","path":[]}',
    '{"op":"save"}',
    '{"op":"get","path":[1.5]}',
])
def test_lines_the_tool_refuses_do_not_fit(schema, line):
    assert not jsonschema.Draft202012Validator(schema).is_valid(json.loads(line))


def test_numbers_offer_their_literal_or_null(schema):
    lock = schema["$defs"]["ConnectorLock"]["properties"]
    assert {"type": "string", "enum": ["ALL"]} in lock["lockingComponent"]["anyOf"]
    assert lock["lockingComponent"]["default"] == "ALL"
    assert {"type": "null"} in lock["minMotion"]["anyOf"]
    assert lock["minMotion"]["default"] is None
    validator = jsonschema.Draft202012Validator(schema)
    section = '{"op":"set","path":["M","connectorSections","S"],"type":"ConnectorSection","values":{"behaviorOptions":[%s]}}'
    assert validator.is_valid(json.loads(section % '{"type":"ConnectorLock","lockingComponent":"ALL","minMotion":null}'))
    assert not validator.is_valid(json.loads(section % '{"type":"ConnectorLock","lockingComponent":"all"}'))
    assert not validator.is_valid(json.loads(section % '{"type":"ConnectorLock","lockingComponent":null}'))


@pytest.mark.parametrize("line, fits", [
    ('{"op":"undo"}', True),
    ('{"op":"rollback"}', True),
    ('{"op":"transaction","commands":[{"op":"create","path":["M"]},{"op":"get","path":["M"]}]}', True),
    ('{"op":"undo","path":[]}', False),
    ('{"op":"transaction"}', False),
    ('{"op":"transaction","commands":[{"op":"explode"}]}', False),
])
def test_history_lines(schema, line, fits):
    assert jsonschema.Draft202012Validator(schema).is_valid(json.loads(line)) == fits


def test_a_constructor_variant_is_listed_and_defined_with_its_class_members(schema):
    assert schema["x-repositories"]["discreteFields"] == ["DiscreteField", "DiscreteFieldFromAnalytic"]
    variant = schema["$defs"]["DiscreteFieldFromAnalytic"]
    plain = schema["$defs"]["DiscreteField"]
    assert variant["x-variantOf"] == "DiscreteField" and variant["x-class"] == "kfdC_DiscreteField"
    assert variant["properties"]["type"] == {"description": "The constructor", "const": "DiscreteFieldFromAnalytic"}
    assert {k: v for k, v in variant["properties"].items() if k not in ("type", "$type")} == \
        {k: v for k, v in plain["properties"].items() if k not in ("type", "$type")}
    validator = jsonschema.Draft202012Validator(schema)
    path = '"path":["Model-1","discreteFields","DF-1"]'
    good = '{"op":"create",' + path + ',"type":"DiscreteFieldFromAnalytic","values":{"analyticFieldName":"AF-1","location":"ELEMENTS"}}'
    assert validator.is_valid(json.loads(good))
    for bad in ['{"op":"create",' + path + ',"type":"DiscreteFieldFromAnalytic","values":{"location":"NODAL"}}',
                '{"op":"create",' + path + ',"type":"DiscreteFieldFromAnalytic","values":{"expression":"X"}}',
                '{"op":"create","path":["Model-1","analyticalFields","F"],"type":"DiscreteFieldFromAnalytic"}']:
        assert not validator.is_valid(json.loads(bad)), bad


def test_read_only_members_are_marked(schema):
    assert schema["$defs"]["ConnectorFriction"]["properties"]["lastId"]["readOnly"] is True
    damage = schema["$defs"]["ConnectorDamage"]["properties"]
    assert damage["lastIniId"]["readOnly"] is True and damage["lastEvoId"]["readOnly"] is True
    assert "readOnly" not in damage["initiationPotentials"]


# Typos the schema catches wherever they stand: in a repository nested in a model object, in an
# element of a list of objects, in a single member that a set gives a "value", and in a step of
# the path itself. Each typo has its correct twin, which fits.
INERTIA = '"path":["M","engineeringFeatures","inertias","PM-1"]'
SECTION = '"path":["M","connectorSections","S-1","behaviorOptions",%s]'
CTRL = '"path":["M","adaptiveMeshControls","C-1",%s]'
STEEL = '"path":["M","materials","Steel",%s]'


@pytest.mark.parametrize("typo, twin", [
    # nested repositories
    ('{"op":"create",' + INERTIA + ',"type":"PointMassInertia","values":{"mass":1,"i11x":2}}',
     '{"op":"create",' + INERTIA + ',"type":"PointMassInertia","values":{"mass":1,"i11":2}}'),
    ('{"op":"create",' + INERTIA + ',"type":"PointMassInertai"}',
     '{"op":"create",' + INERTIA + ',"type":"PointMassInertia"}'),
    ('{"op":"create","path":["M","engineeringFeatures","inertia","PM-1"],"type":"PointMassInertia"}',
     '{"op":"create","path":["M","engineeringFeatures","inertias","PM-1"],"type":"PointMassInertia"}'),
    ('{"op":"get","path":["M","engineeringFeature","inertias"]}',
     '{"op":"get","path":["M","engineeringFeatures","inertias"]}'),
    ('{"op":"set","path":["M","engineeringFeatures","inertias","PM-1","mas"],"value":2}',
     '{"op":"set","path":["M","engineeringFeatures","inertias","PM-1","mass"],"value":2}'),
    # elements of lists of objects, and objects within them
    ('{"op":"set",' + SECTION % '0' + ',"values":{"componets":[1]}}',
     '{"op":"set",' + SECTION % '0' + ',"values":{"components":[1]}}'),
    ('{"op":"set",' + SECTION % '2,"isotropicOptions"' + ',"type":"ConnectorOptions","values":{"regularisation":0.01}}',
     '{"op":"set",' + SECTION % '2,"isotropicOptions"' + ',"type":"ConnectorOptions","values":{"regularization":0.01}}'),
    ('{"op":"set",' + SECTION % '2,"isotropicOption"' + ',"type":"ConnectorOptions"}',
     '{"op":"set",' + SECTION % '2,"isotropicOptions"' + ',"type":"ConnectorOptions"}'),
    ('{"op":"set",' + SECTION % '1,"isotropicOptions","regularization"' + ',"value":"small"}',
     '{"op":"set",' + SECTION % '1,"isotropicOptions","regularization"' + ',"value":0.02}'),
    # single members given a "value"
    ('{"op":"set",' + CTRL % '"meshConstraintAngel"' + ',"value":45}',
     '{"op":"set",' + CTRL % '"meshConstraintAngle"' + ',"value":45}'),
    ('{"op":"set",' + CTRL % '"remapping"' + ',"value":"THIRD_ORDER_ADVECTION"}',
     '{"op":"set",' + CTRL % '"remapping"' + ',"value":"FIRST_ORDER_ADVECTION"}'),
    ('{"op":"set",' + CTRL % '"meshConstraintAngle"' + ',"value":"45"}',
     '{"op":"set",' + CTRL % '"meshConstraintAngle"' + ',"value":45.5}'),
    ('{"op":"set",' + STEEL % '"elastic","tabel"' + ',"value":[[210000,0.3]]}',
     '{"op":"set",' + STEEL % '"elastic","table"' + ',"value":[[210000,0.3]]}'),
    ('{"op":"set",' + STEEL % '"elastic","moduli"' + ',"value":"LONG"}',
     '{"op":"set",' + STEEL % '"elastic","moduli"' + ',"value":"INSTANTANEOUS"}'),
    ('{"op":"set",' + STEEL % '"elastic"' + ',"type":"Elastic","values":{"tabel":[[1,0.3]]}}',
     '{"op":"set",' + STEEL % '"elastic"' + ',"type":"Elastic","values":{"table":[[1,0.3]]}}'),
    ('{"op":"set",' + STEEL % '"elastik"' + ',"type":"Elastic"}',
     '{"op":"set",' + STEEL % '"elastic"' + ',"type":"Elastic"}'),
    # a step of the path at the model
    ('{"op":"get","path":["M","materails","Steel"]}',
     '{"op":"get","path":["M","materials","Steel"]}'),
])
def test_typos_fail_and_their_twins_fit(schema, typo, twin):
    validator = jsonschema.Draft202012Validator(schema)
    assert validator.is_valid(json.loads(twin)), [e.message for e in validator.iter_errors(json.loads(twin))]
    assert not validator.is_valid(json.loads(typo))


def test_every_definition_is_described(schema):
    undescribed = [name for name, d in schema["$defs"].items() if not d.get("description")]
    assert undescribed == []
    ctrl = schema["$defs"]["AdaptiveMeshControl"]
    assert ctrl["description"].startswith("An adaptive mesh control")
    missing = [f"{name}.{member}" for name, d in schema["$defs"].items()
               for member, m in d.get("properties", {}).items() if not m.get("description")]
    assert missing == []
    assert schema["$defs"]["TabularAmplitude"]["properties"]["data"]["description"] == (
        "Amplitude at each time, times not decreasing (table: time, amplitude; at least two rows)")
    assert all(op.get("description") for op in schema["oneOf"])
