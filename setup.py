"""Builds the Python module by CMake; pyproject.toml describes the package."""
import os
import pathlib
import re
import shutil
import subprocess
import sys

from setuptools import Extension, setup
from setuptools.command.build_ext import build_ext

ROOT = pathlib.Path(__file__).resolve().parent


def project_version():
    """The version of CMakeLists.txt."""
    text = (ROOT / "CMakeLists.txt").read_text(encoding="utf-8")
    return re.search(r"project\(\w+ VERSION ([\d.]+)", text).group(1)


def pybind11_options():
    """Where CMake finds pybind11, if it was installed by pip and not by the system."""
    try:
        import pybind11
    except ImportError:
        return []
    return [f"-Dpybind11_DIR={pybind11.get_cmake_dir()}"]


class CMakeBuild(build_ext):
    def build_extension(self, extension):
        build = pathlib.Path(self.build_temp).resolve()
        off = ("TESTS", "C", "WINDCASE", "EXAMPLES")
        options = [f"-DORVE_BUILD_{part}=OFF" for part in off]
        generator = ["-G", "Ninja"] if shutil.which("ninja") else []
        options += [
            "-DCMAKE_BUILD_TYPE=Release",
            "-DCMAKE_CXX_FLAGS_RELEASE=-O2 -DNDEBUG",
            "-DORVE_BUILD_PYTHON=ON",
            "-DORVE_INSTALL=OFF",
            "-DORVE_WERROR=OFF",
            f"-DPython3_EXECUTABLE={sys.executable}",
        ]
        subprocess.run(
            ["cmake", "-S", str(ROOT), "-B", str(build), *generator, *options, *pybind11_options()], check=True
        )
        subprocess.run(
            ["cmake", "--build", str(build), "--target", "orve_python", "--parallel", str(os.cpu_count() or 1)],
            check=True,
        )
        module = pathlib.Path(self.get_ext_fullpath(extension.name)).resolve()
        module.parent.mkdir(parents=True, exist_ok=True)
        built = next((build / "python" / "orve3_bs6399_2").glob("_orve*" + module.suffix))
        shutil.copy2(built, module)
        # The data folder of the components goes into the package.
        shutil.copytree(ROOT / "data", module.parent / "share" / "orve" / "wzfdata", dirs_exist_ok=True)


setup(
    version=project_version(),
    ext_modules=[Extension("orve3_bs6399_2._orve", sources=[])],
    cmdclass={"build_ext": CMakeBuild},
)
