#!/usr/bin/env python3
"""Builds an example model in Python, validates it, saves it, reopens the file and checks that
every object came back as it was saved.

    PYTHONPATH=build/python python3 examples/example_model.py [FILE]

FILE defaults to example_model.odb in the temporary directory.
"""
import os
import sys
import tempfile

import qmxodbattr as qa


def build(db: qa.Database) -> qa.Model:
    m = db.create_model("Model-1")

    # Adaptive mesh controls: the defaults, and a refined setup changed member by member.
    m.adaptiveMeshControls["Ale-Default"] = qa.AdaptiveMeshControl()
    m.adaptiveMeshControls["Ale-Refined"] = qa.AdaptiveMeshControl(
        remapping="FIRST_ORDER_ADVECTION", smoothingPriority="GRADED", initialFeatureAngle=20.0)
    refined = m.adaptiveMeshControls["Ale-Refined"]
    refined.meshingPredictor = "PREVIOUS"
    refined.volumetricSmoothingWeight = 0.25
    refined.laplacianSmoothingWeight = 0.5
    refined.equipotentialSmoothingWeight = 0.25

    # Beam profiles: standard shapes and a generalized section.
    m.profiles["Rod-10"] = qa.CircularProfile(r=10.0)
    m.profiles["Pipe-50x5"] = qa.PipeProfile(r=50.0, t=5.0, integrationScheme="THICK_WALL")
    m.profiles["I-200"] = qa.IProfile(l=100.0, h=200.0, b1=100.0, b2=100.0, t1=8.0, t2=8.0, t3=6.0)
    m.profiles["Section-A"] = qa.GeneralizedProfile(area=1.2e3, i11=4.5e5, i12=0.0, i22=2.1e5, j=6.0e5)

    # Amplitudes: a load history with a baseline correction, and a smooth ramp.
    history = qa.TabularAmplitude(timeSpan="TOTAL", smooth=0.05,
                                  data=[[0.0, 0.0], [0.5, 0.8], [1.0, 1.0], [2.0, 0.25]])
    history.baselineCorrection = qa.BaselineCorrection(intervals=[0.5, 1.0, 2.0])
    m.amplitudes["Load-History"] = history
    m.amplitudes["Ramp-Up"] = qa.SmoothStepAmplitude(data=[[0.0, 0.0], [0.2, 1.0], [1.0, 1.0]])

    # Materials, where the library has them.
    if "Material" in qa.constructors() and "Elastic" in qa.constructors():
        m.materials["Steel"] = qa.Material(description="Structural steel, N and mm")
        m.materials["Steel"].elastic = qa.Elastic(table=[[210e3, 0.3]])
    return m


def main(argv: list[str]) -> int:
    path = argv[1] if len(argv) > 1 else os.path.join(tempfile.gettempdir(), "example_model.odb")
    db = qa.Database()
    model = build(db)

    # A rule broken on purpose is refused with the module's own message; fixing it passes.
    ramp = model.amplitudes["Ramp-Up"]
    ramp.data = [[0.0, 0.0], [0.5, 1.0], [0.2, 1.0]]
    try:
        ramp.validate()
        raise SystemExit("a decreasing time was accepted")
    except qa.ValidationError as e:
        print(f"refused as expected: {e} ({e.file}, line {e.line})")
    ramp.data = [[0.0, 0.0], [0.2, 1.0], [1.0, 1.0]]

    # An unknown literal changes nothing.
    try:
        model.profiles["Pipe-50x5"].integrationScheme = "thick_wall"
    except qa.CommandError as e:
        print(f"refused as expected: {e}")
    assert model.profiles["Pipe-50x5"].integrationScheme == "THICK_WALL"

    checked = db.validate()["validated"]
    print(f"validated {checked} objects")

    db.save(path)
    reopened = qa.Database.open(path)
    if reopened.to_dict() != db.to_dict():
        raise SystemExit(f"{path} did not read back as saved")
    for name in reopened:
        m = reopened[name]
        for repo in m.repositories():
            held = m[repo]  # a repository, or an object holding repositories (engineeringFeatures)
            keys = list(held) if isinstance(held, qa.Repository) else []
            if keys:
                print(f"{name}/{repo}: {', '.join(keys)}")
    print(f"saved and reopened {path}")
    return 0


if __name__ == "__main__":
    sys.exit(main(sys.argv))
