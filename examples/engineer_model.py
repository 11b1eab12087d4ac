#!/usr/bin/env python3
"""A model built the way an engineer scripts one: materials, amplitudes, a profile, a connector
section, constraints, a field and an optimization task; edits in place, every validation failure
at once, a save to a path, a reopen and a change.

    PYTHONPATH=build/python python3 examples/engineer_model.py [FILE]
"""
import pathlib
import sys
import tempfile

import qmxodbattr as qa


def build(db: qa.Database) -> qa.Model:
    m = db.create_model("Bracket")
    for name, e, nu, rho, plastic in [
        ("Steel-S355", 210000.0, 0.3, 7.85e-9, [[355.0, 0.0], [450.0, 0.03], [510.0, 0.15]]),
        ("Al-6061", 69000.0, 0.33, 2.7e-9, [[240.0, 0.0], [290.0, 0.08]]),
    ]:
        m.materials[name] = qa.Material(description=f"{name}, N and mm")
        mat = m.materials[name]
        mat.elastic = qa.Elastic(table=[[e, nu]])
        mat.plastic = qa.Plastic(hardening="ISOTROPIC", table=plastic)
        mat.density = qa.Density(table=[[rho]])
    # A table is its rows, in place: this edit reaches the model.
    m.materials["Al-6061"].plastic.table.append([310.0, 0.12])

    m.amplitudes["Ramp"] = qa.TabularAmplitude(timeSpan="TOTAL", data=[[0.0, 0.0], [1.0, 1.0]])
    m.amplitudes["Ramp"].data[1][1] = 0.9
    m.profiles["Pipe-50x5"] = qa.PipeProfile(r=50.0, t=5.0, integrationScheme="THICK_WALL")

    m.connectorSections["Bushing"] = qa.ConnectorSection(behaviorOptions=[
        qa.ConnectorElasticity(components=[1, 2, 3], table=[[25000.0, 25000.0, 80000.0]])])
    m.connectorSections["Bushing"].behaviorOptions[0].table[0][2] = 90000.0  # in place, in the model

    m.constraints["Bracket-Plate"] = qa.Tie(master="Plate-Top", slave="Bracket-Foot",
                                             positionToleranceMethod="SPECIFIED", positionTolerance=0.5)
    m.constraints["Load-Point"] = qa.Coupling(surface="Flange-Face", refPoint="RP-Load",
                                               couplingType="DISTRIBUTING")
    m.analyticalFields["Temperature"] = qa.ExpressionField(expression="20.0 + 0.5*X")

    task = qa.TopologyTask(region="DesignSpace", numDesignCycles=30)
    task.designResponses["Volume"] = qa.SingleTermDesignResponse(
        request=qa.SingleTermRequest(identifier="VOLUME", operation="SUM", drivingRegion="DesignSpace"))
    m.optimizationTasks["Topology"] = task
    m.engineeringFeatures.inertias["Motor"] = qa.PointMassInertia(region="RP-Motor", mass=12.5)
    return m


def main(argv: list[str]) -> int:
    path = pathlib.Path(argv[1]) if len(argv) > 1 else pathlib.Path(tempfile.gettempdir()) / "engineer_model.odb"
    db = qa.Database()
    m = build(db)
    print(repr(m.profiles["Pipe-50x5"]))

    # Two broken amplitudes: validation reports both, first first.
    m.amplitudes["Short-1"] = qa.TabularAmplitude(data=[[0.0, 0.0]])
    m.amplitudes["Short-2"] = qa.TabularAmplitude(data=[[0.0, 0.0]])
    try:
        db.validate()
        raise SystemExit("two broken amplitudes passed")
    except qa.ValidationError as e:
        for failure in e.failures or []:
            print("/".join(failure["path"]), failure["message"])
    m.amplitudes.pop("Short-1")
    del m.amplitudes["Short-2"]
    db.validate()

    db.save(path, overwrite=True)
    back = qa.Database.open(path)
    if back.to_dict() != db.to_dict():
        raise SystemExit(f"{path} did not read back as saved")
    back["Bracket"].materials["Steel-S355"].elastic.table[0][0] = 200000.0
    back.save(path, overwrite=True)
    print(f"saved, reopened and changed {path}")
    return 0


if __name__ == "__main__":
    sys.exit(main(sys.argv))
