"""Detached objects: construction from the class metadata, members by scripting name, literals,
validation with the modules' messages, and refusals that change nothing."""
import math

import pytest

import qmxodbattr as qa

ENUM_FROM_STRING = "omu_PrimEnum(const cow_String&) - str not allowed: "
ENUM_FILE = "QMXAbuTessarUtilities/ProtectedInterfaces/omu_PrimEnum"
KAD_FILE = "QMXOdbKadC.m/src/kadC_assert"
MAX_DOUBLE = 1.7976931348623157e308


def test_every_module_family_has_its_constructors():
    ctors = set(qa.constructors())
    for name in ["AdaptiveMeshControl", "CircularProfile", "PipeProfile", "GeneralizedProfile",
                 "TabularAmplitude", "SmoothStepAmplitude", "BaselineCorrection"]:
        assert name in ctors
        assert isinstance(getattr(qa, name), type)
        assert issubclass(getattr(qa, name), qa.Object)


def test_defaults_and_keywords():
    c = qa.AdaptiveMeshControl()
    assert c.remapping == "SECOND_ORDER_ADVECTION"
    assert c.smoothingAlgorithm == "ANALYSIS_PRODUCT_DEFAULT"
    assert c.meshingPredictor == "CURRENT"
    assert c.initialFeatureAngle == 30.0
    assert c.meshConstraintAngle == 60.0
    assert c.originalConfigurationProjectionWeight == 1.0
    c = qa.AdaptiveMeshControl(remapping="FIRST_ORDER_ADVECTION", initialFeatureAngle=20)
    assert c.remapping == "FIRST_ORDER_ADVECTION"
    assert c.initialFeatureAngle == 20.0 and isinstance(c.initialFeatureAngle, float)
    assert type(c) is qa.AdaptiveMeshControl
    assert c.type_name == "AdaptiveMeshControl" and c.class_name == "kadC_AdptMeshCtrl"
    assert c.path is None


@pytest.mark.parametrize("literal", ["first_order_advection", "", "FIRST_ORDER_ADVECTION ", "SECOND"])
def test_unknown_literal_is_refused_and_changes_nothing(literal):
    c = qa.AdaptiveMeshControl(remapping="FIRST_ORDER_ADVECTION")
    with pytest.raises(qa.CommandError) as e:
        c.remapping = literal
    msg = e.value.message
    assert msg.startswith(ENUM_FROM_STRING + literal + "  Permissible: ")
    assert "FIRST_ORDER_ADVECTION" in msg[len(ENUM_FROM_STRING + literal):]
    assert "SECOND_ORDER_ADVECTION" in msg
    assert str(e.value) == msg
    assert (e.value.kind, e.value.file, e.value.line) == ("CmdException", ENUM_FILE, 103)
    assert c.remapping == "FIRST_ORDER_ADVECTION"


def test_unknown_literal_in_constructor_makes_nothing():
    with pytest.raises(qa.CommandError) as e:
        qa.PipeProfile(r=2.0, integrationScheme="thick_wall")
    assert e.value.message.startswith(ENUM_FROM_STRING + "thick_wall  Permissible: ")
    assert e.value.path == ["integrationScheme"]


@pytest.mark.parametrize("member,value", [
    ("initialFeatureAngle", "wide"),
    ("initialFeatureAngle", [1.0]),
    ("remapping", 3.5),
    ("curvatureRefinement", None),
])
def test_value_of_the_wrong_kind_is_refused_and_changes_nothing(member, value):
    c = qa.AdaptiveMeshControl()
    before = c.to_dict()
    with pytest.raises(qa.CommandError):
        setattr(c, member, value)
    assert c.to_dict() == before


def test_unknown_member_is_an_attribute_error_naming_the_members():
    c = qa.CircularProfile()
    with pytest.raises(qa.MemberError) as e:
        c.radius = 3.0
    assert e.value.message == 'CircularProfile has no member "radius"; its members are r'
    with pytest.raises(AttributeError):
        c.radius
    assert not hasattr(c, "radius")
    assert getattr(c, "radius", 7) == 7
    with pytest.raises(qa.CommandError) as e:
        qa.CircularProfile(radius=3.0)
    assert e.value.message == 'CircularProfile has no member "radius"; its members are r'


# (initialFeatureAngle, meshConstraintAngle, curvatureRefinement, expected message or None)
KAD_CASES = [
    (0.0, 60.0, 1.0, None),
    (180.0, 180.0, 0.0, None),
    (180.0001, 60.0, 1.0, "Initial feature angle must be greater than or equal to zero and less than or equal to 180."),
    (-1e-9, 60.0, 1.0, "Initial feature angle must be greater than or equal to zero and less than or equal to 180."),
    (math.nan, 60.0, 1.0, "Initial feature angle must be greater than or equal to zero and less than or equal to 180."),
    # Rule order: the feature angle is checked before the mesh constraint angle.
    (200.0, 200.0, -1.0, "Initial feature angle must be greater than or equal to zero and less than or equal to 180."),
    (30.0, 180.5, -1.0, "Mesh constraint angle must be greater than or equal to zero and less than or equal to 180."),
    (30.0, 60.0, -0.5, "Curvature refinement must be greater than or equal to zero."),
]


@pytest.mark.parametrize("angle,constraint,curvature,message", KAD_CASES)
def test_adaptive_mesh_validation(angle, constraint, curvature, message):
    c = qa.AdaptiveMeshControl(initialFeatureAngle=angle, meshConstraintAngle=constraint,
                               curvatureRefinement=curvature)
    if message is None:
        assert c.validate() is None
        return
    before = c.to_dict()
    with pytest.raises(qa.ValidationError) as e:
        c.validate()
    assert e.value.message == message
    assert (e.value.kind, e.value.file, e.value.line) == ("PrimException", KAD_FILE, 71)
    assert not isinstance(e.value, qa.CommandError)
    assert str(c.to_dict()) == str(before)  # nan compares unequal to itself; the text does not


I12 = "The value of I12 must satisfy the inequality:\n -(I11+I22)/2 < I12 <= (I11+I22)/2"


@pytest.mark.parametrize("obj,message", [
    (qa.GeneralizedProfile(i11=2.0, i22=2.0, i12=2.0), None),
    (qa.GeneralizedProfile(i11=2.0, i22=2.0, i12=-2.0), I12),
    (qa.GeneralizedProfile(i11=2.0, i22=0.0, i12=0.1), "When the value of I22 is zero, the value of I12 must also be zero."),
    (qa.GeneralizedProfile(i11=2.0, i12=0.0, i22=-1.0), "The value of I22  must be greater than or equal to zero."),
    (qa.PipeProfile(r=5.0, t=5.0), "The thickness must be less than the radius."),
    (qa.CircularProfile(r=0.0), "The radius must be greater than zero."),
    (qa.BaselineCorrection(intervals=[0.0, 0.0]),
     "Invalid baseline correction values, expected non-negative\nmonotonically increasing numbers."),
    (qa.TabularAmplitude(data=[[0.0, 0.0], [1.0, 1.0], [1.0, 2.0]]), None),
    (qa.TabularAmplitude(data=[[0.0, 0.0]]), "The Time-Amplitude table should have at least two rows of data."),
    (qa.TabularAmplitude(data=[[0.0, 0.0, 1.0], [1.0, 1.0, 1.0]]), "Number of columns must be less or equal to 2."),
    (qa.TabularAmplitude(data=[[0.0, 0.0], [1.0, 1.0]], smooth=0.6),
     "Invalid smoothing parameter, expected a value between 0.0 and 0.5."),
    # A correlation component is built and validated by scripts as an object of its own.
    (qa.CorrelationComponent(approach="UNCORRELATED", dataList=[1.0, 0.5]), None),
    (qa.CorrelationComponent(approach="USER", dataList=[1.0]), "The data parameter cannot be specified with USER."),
    (qa.CorrelationComponent(approach="MOVING_NOISE", dataList=[1.0]), "Moving noise correlation is not yet supported."),
    (qa.CorrelationComponent(approach="CORRELATED", dataList=[]), "At least one value must be specified with the data parameter."),
    (qa.CorrelationComponent(dataList=[1.0, 2.0, 3.0]),
     "Data cannot have a length of more than 2 with CORRELATED and UNCORRELATED."),
])
def test_validation_messages_of_other_modules(obj, message):
    if message is None:
        obj.validate()
    else:
        with pytest.raises(qa.ValidationError) as e:
            obj.validate()
        assert e.value.message == message


def test_nested_object_of_a_detached_object_is_a_view():
    a = qa.TabularAmplitude(data=[[0.0, 0.0], [1.0, 1.0]])
    assert a.baselineCorrection is None
    a.baselineCorrection = qa.BaselineCorrection(intervals=[0.5, 1.0])
    b = a.baselineCorrection
    assert type(b) is qa.BaselineCorrection
    b.intervals = [0.0, 0.0]
    assert a.baselineCorrection.intervals == [0.0, 0.0]
    # Validation of the owner reaches its baseline correction.
    with pytest.raises(qa.ValidationError) as e:
        a.validate()
    assert e.value.message.startswith("Invalid baseline correction values")
    del a.baselineCorrection
    assert a.baselineCorrection is None
    a.validate()


def test_sentinel_literal_of_a_number_member():
    a = qa.TabularAmplitude()
    a.smooth = 0.25
    assert a.smooth == 0.25
    a.smooth = "SOLVER_DEFAULT"
    assert a.smooth == "SOLVER_DEFAULT"
    with pytest.raises(qa.CommandError):
        a.smooth = "DEFAULT"
    assert a.smooth == "SOLVER_DEFAULT"


def test_item_access_and_copy():
    p = qa.PipeProfile(r=3.0, t=1.0)
    assert p["r"] == 3.0
    p["t"] = 0.5
    q = p.copy()
    q.t = 0.25
    assert p.t == 0.5 and q.t == 0.25
    assert p != q
    q.t = 0.5
    assert p == q
    assert p != qa.CircularProfile(r=3.0)


def test_every_constructor_rebuilds_from_its_own_values():
    # Each kind of value (tables, lists, literals, booleans, nested objects) goes out to Python and
    # back in equal.
    for name in qa.constructors():
        cls = getattr(qa, name)
        obj = cls()
        values = obj.to_dict()
        del values["$type" if "$type" in values else "type"]
        assert cls(**values) == obj, name
        assert list(values) == list(cls.scripting_members), name


def test_dir_and_docstrings_list_members_types_and_literals():
    names = dir(qa.AdaptiveMeshControl())
    for member in ["remapping", "meshingPredictor", "initialFeatureAngle", "validate"]:
        assert member in names
    doc = qa.AdaptiveMeshControl.__doc__
    assert doc.startswith("AdaptiveMeshControl(")
    assert ("    remapping: str = 'SECOND_ORDER_ADVECTION'; one of \"FIRST_ORDER_ADVECTION\", "
            '"SECOND_ORDER_ADVECTION"\n') in doc
    assert '"STANDARD", "GEOMETRY_ENHANCED", "ANALYSIS_PRODUCT_DEFAULT"' in doc
    assert "    initialFeatureAngle: float = 30.0\n" in doc
    assert "    meshConstraintAngle: float = 60.0\n" in doc
    assert "kadC_" not in doc  # the Python name, never the C++ class
    doc = qa.TabularAmplitude.__doc__
    assert '"STEP", "TOTAL"' in doc
    assert "    baselineCorrection: BaselineCorrection or None\n" in doc
    assert ("    data: table (a list of rows of floats) = [[0.0, 0.0], [1.0, 1.0]]\n"
            "        Amplitude at each time, times not decreasing"
            " (table: time, amplitude; at least two rows)\n") in doc
    assert qa.CircularProfile.__doc__.startswith("CircularProfile(**members)\n\nA solid circle of radius r.\n\n")
    assert '"THIN_WALL", "THICK_WALL"' in qa.PipeProfile.__doc__


def test_an_object_of_the_wrong_class_for_a_member_is_refused():
    a = qa.TabularAmplitude(data=[[0.0, 0.0], [1.0, 1.0]])
    a.baselineCorrection = qa.BaselineCorrection(intervals=[1.0])
    with pytest.raises(qa.CommandError):
        a.baselineCorrection = qa.CircularProfile(r=1.0)
    assert a.baselineCorrection.intervals == [1.0]
    with pytest.raises(TypeError):
        a.data = object()
    assert a.data == [[0.0, 0.0], [1.0, 1.0]]


def test_a_bare_object_holds_nothing():
    o = qa.Object()
    with pytest.raises(qa.CommandError):
        o.validate()
    with pytest.raises(qa.CommandError):
        o.to_dict()
    with pytest.raises(AttributeError):
        o.r


@pytest.mark.parametrize("ctor,list_name,last", [
    ("ConnectorFriction", "connectorPotentials", "lastId"),
    ("ConnectorPlasticity", "connectorPotentials", "lastId"),
    ("ConnectorDamage", "initiationPotentials", "lastIniId"),
    ("ConnectorDamage", "evolutionPotentials", "lastEvoId"),
])
def test_last_potential_ids_are_read_only_but_rebuild_from_to_dict(ctor, list_name, last):
    cls = getattr(qa, ctor)
    option = cls(**{list_name: [qa.ConnectorPotential(componentNumber=1), qa.ConnectorPotential(componentNumber=2)]})
    assert getattr(option, last) == 2
    assert "read-only" in cls.__doc__.split(last + ":")[1].splitlines()[0]
    for value in (1, 2, 7):
        with pytest.raises(qa.CommandError) as e:
            setattr(option, last, value)
        assert e.value.message == f'The member "{last}" of {ctor} is read-only; it is given only where the object is made'
    assert getattr(option, last) == 2
    values = option.to_dict()
    del values["type"]
    assert cls(**values) == option
