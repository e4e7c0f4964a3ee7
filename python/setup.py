"""Builds the library with CMake, and packs it with the schemas and the Python modules into one wheel.

VENDORINFOFILE_BUILD names a folder that CMake has configured already; without it, one is configured in build/wheel.
"""

import glob
import os
import re
import shutil
import subprocess
import sys
import tempfile

from setuptools import Distribution, setup
from setuptools.command.build_py import build_py

try:
    from setuptools.command.bdist_wheel import bdist_wheel
except ImportError:  # before setuptools 70.1
    from wheel.bdist_wheel import bdist_wheel

HERE = os.path.dirname(os.path.abspath(__file__))
ROOT = os.path.dirname(HERE)


def project_version():
    with open(os.path.join(ROOT, "CMakeLists.txt"), encoding="utf-8") as file:
        return re.search(r"project\(VendorInfoFile VERSION (\S+)", file.read())[1]


def configured_build():
    chosen = os.environ.get("VENDORINFOFILE_BUILD")
    if chosen:
        return chosen
    build = os.path.join(ROOT, "build", "wheel")
    subprocess.check_call(
        ["cmake", "-S", ROOT, "-B", build, "-DCMAKE_BUILD_TYPE=Release"]
        + [f"-DVENDORINFOFILE_BUILD_{part}=OFF" for part in ("TOOLS", "EXAMPLES")]
    )
    return build


def add_library(folder):
    """Builds the library, and puts it with what it needs of this project into the folder. Returns its file name."""
    build = configured_build()
    os.environ.setdefault("CMAKE_BUILD_PARALLEL_LEVEL", str(os.cpu_count() or 1))
    subprocess.check_call(["cmake", "--build", build, "--target", "VendorInfoFileC"])
    os.makedirs(folder, exist_ok=True)
    with tempfile.TemporaryDirectory() as prefix:
        subprocess.check_call(
            ["cmake", "--install", build, "--component", "Library", "--prefix", prefix, "--strip"],
            stdout=subprocess.DEVNULL,
        )
        # Under the names by which the loader looks for them; a wheel cannot hold links.
        for library in glob.glob(os.path.join(prefix, "**", "lib*.so.*"), recursive=True):
            if len(os.path.basename(library).split(".so.")[1].split(".")) < 3:
                shutil.copy(library, folder)
        for schema in glob.glob(os.path.join(prefix, "**", "*.xsd"), recursive=True):
            shutil.copy(schema, folder)
    return os.path.basename(glob.glob(os.path.join(folder, "libvif.so.*"))[0])


class BuildWithLibrary(build_py):
    """Adds the library, and the modules that are generated for it."""

    def run(self):
        package = os.path.join(self.build_lib, "vendorinfofile")
        # What an earlier build has left there, such as a library of another version, would go into the wheel.
        shutil.rmtree(package, ignore_errors=True)
        super().run()
        library = add_library(os.path.join(package, "_lib"))
        shutil.copy(os.path.join(ROOT, "LICENSE"), package)
        subprocess.check_call(
            [sys.executable, os.path.join(HERE, "generate.py"), os.path.join(ROOT, "c", "vif.h")]
            + [f"_lib/{library}", project_version(), package]
        )


class AnyPython(bdist_wheel):
    """One wheel for every Python 3, CPython or not, of this platform: no module is compiled for one of them.

    With VENDORINFOFILE_SBOM=1 it has a software bill of materials. That needs SOURCE_DATE_EPOCH, which becomes its time,
    Debian's list of installed packages, and a build by Ninja.
    """

    def egg2dist(self, egginfo_path, distinfo_path):
        super().egg2dist(egginfo_path, distinfo_path)
        if os.environ.get("VENDORINFOFILE_SBOM") == "1":
            subprocess.check_call(
                [sys.executable, os.path.join(ROOT, "scripts", "sbom.py"), "--name", "vendorinfofile"]
                + ["--version", project_version(), "--build", configured_build(), self.bdist_dir]
                + [os.path.join(distinfo_path, "sboms", "vendorinfofile.cdx.json")]
            )

    def get_tag(self):
        return "py3", "none", super().get_tag()[2]


class WithLibrary(Distribution):
    """Not for every platform."""

    def has_ext_modules(self):
        return True


setup(
    version=project_version(),
    packages=["vendorinfofile"],
    package_dir={"": "src"},
    package_data={"vendorinfofile": ["py.typed", "*.pyi"]},
    cmdclass={"build_py": BuildWithLibrary, "bdist_wheel": AnyPython},
    distclass=WithLibrary,
)
