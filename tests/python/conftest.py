import os
import pathlib

import pytest


@pytest.fixture
def workdir(tmp_path):
    """A scratch folder: under the build's test folder when ctest runs us, else pytest's own."""
    root = os.environ.get("QMX_TEST_TMP")
    if not root:
        return tmp_path
    d = pathlib.Path(root) / "python" / tmp_path.name
    d.mkdir(parents=True, exist_ok=True)
    return d
