"""Advice from scripts: db.advise(), model, repository and object advise() return the warnings
with their path, member, code and message; a detached object is advised on its own; advice leaves
validation as it was."""
import pytest

import qmxodbattr as qa


@pytest.fixture
def model():
    db = qa.Database()
    return db, db.create_model("Model-1")


def test_every_level_returns_the_warnings_under_it(model):
    db, m = model
    m.materials["Steel"] = qa.Material()
    m.materials["Steel"].elastic = qa.Elastic(table=[[210000.0, 0.7]])
    m.materials["Glass"] = qa.Material(elastic=qa.Elastic(table=[[70000.0, 0.22]]))
    expected = [{"path": ["Model-1", "materials", "Steel", "elastic"], "member": "table",
                 "code": "elastic-poisson-range",
                 "message": "The Poisson's ratio in row 1 is 0.7; expected a value above -1 and below 0.5"}]
    assert db.advise() == expected
    assert m.advise() == expected
    assert m.materials.advise() == expected
    assert m.materials["Steel"].advise() == expected
    assert m.materials["Glass"].advise() == []
    # Advice is no validation: the material validates.
    assert m.materials["Steel"].validate() is None


def test_a_detached_object_is_advised_on_its_own():
    steel = qa.Material(density=qa.Density(table=[[-7.8e-9]]))
    assert steel.advise() == [{"path": ["density"], "member": "table", "code": "density-sign",
                               "message": "The density in row 1 is -7.8e-09; expected a positive mass density"}]
    assert qa.Material(density=qa.Density(table=[[7.8e-9]])).advise() == []
