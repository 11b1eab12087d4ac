"""Remeshing rules, signal filters and load cases as Python objects: generated from the class
metadata like every other constructor, with the element count limit as its literal, terms as
nested objects and each module's own validation messages."""
import pytest

import qmxodbattr as qa


def test_the_three_modules_have_their_constructors():
    ctors = set(qa.constructors())
    for name in ["RemeshingRule", "LoadCase", "LoadCaseTerm", "ButterworthFilter", "Chebyshev1Filter",
                 "Chebyshev2Filter", "OperatorFilter"]:
        assert name in ctors
        assert issubclass(getattr(qa, name), qa.Object)
    assert qa.RemeshingRule().class_name == "karC_RemeshingRule"
    assert qa.OperatorFilter().class_name == "kflC_OperatorFilter"


def test_element_count_limit_is_a_number_or_its_literal():
    r = qa.RemeshingRule(stepName="Step-1", region="Set-1", variables=["MISESERI"])
    assert r.elementCountLimit == "UNLIMITED"
    r.elementCountLimit = 5000
    assert r.elementCountLimit == 5000
    r.elementCountLimit = "UNLIMITED"
    assert r.elementCountLimit == "UNLIMITED"
    with pytest.raises(qa.CommandError) as e:
        r.elementCountLimit = "NONE"
    assert e.value.message == "omu_PrimEnum(const cow_String&) - str not allowed: NONE  Permissible: UNLIMITED"
    assert r.elementCountLimit == "UNLIMITED"
    assert r.validate() is None


@pytest.mark.parametrize("obj,message,file,line", [
    (qa.RemeshingRule(stepName="Step-1", region="Set-1"),
     "At least one error indicator output variable must be specified.", "QMXOdbKarC.m/src/karC_assert", 64),
    (qa.RemeshingRule(stepName="Step-1", region="Set-1", variables=["A"], elementCountLimit=0),
     "Element count limit must be greater than zero.", "QMXOdbKarC.m/src/karC_assert", 64),
    (qa.LoadCase(stepName="Step-1"),
     "At least one load or boundary condition must be specified.", "QMXOdbKlcC.m/src/klcC_assert", 52),
    (qa.LoadCase(stepName="Step-1", loads=[{"name": "L", "scaleFactor": float("inf")}]),
     "Scale factors must be finite numbers.", "QMXOdbKlcC.m/src/klcC_assert", 52),
    (qa.Chebyshev1Filter(cutoffFrequency=10.0, rippleFactor=1.5),
     "The ripple factor must be greater than zero and less than one.", "QMXOdbKflC.m/src/kflC_Filter", 38),
    (qa.OperatorFilter(halt=True, operation="MIN"),
     "A limit must be specified to halt the analysis.", "QMXOdbKflC.m/src/kflC_Filter", 38),
])
def test_validation_messages(obj, message, file, line):
    with pytest.raises(qa.ValidationError) as e:
        obj.validate()
    assert e.value.message == message
    assert (e.value.kind, e.value.file, e.value.line) == ("PrimException", file, line)


def test_load_case_terms_are_nested_objects():
    lc = qa.LoadCase(stepName="Step-1", loads=[{"name": "Dead", "scaleFactor": 1.35}, {"name": "Live"}])
    assert lc.validate() is None
    values = lc.to_dict()
    assert [t["name"] for t in values["loads"]] == ["Dead", "Live"]
    assert [t["scaleFactor"] for t in values["loads"]] == [1.35, 1.0]
