#!/usr/bin/env python3
"""Writes the software bill of materials of a package, in CycloneDX 1.5, from the files that are in the package.

    sbom.py --name NAME --version VERSION --build DIRECTORY [--archives MAP] [--included FILE]... ROOT OUTPUT

ROOT holds the package's files, and DIRECTORY is the one in which Ninja built them. The bill names

- the files with their hashes,
- the libraries that the programs and libraries among them are linked with: by name those that they load, by Debian's
  package and version those that were there when they were built. MAP is a linker's map file, which names the archives
  that a static program is made from,
- the header-only libraries that were compiled into them,
- Debian's packages of the FILEs, of which the package has parts.

Nothing in it depends on when, where or by whom it is made: its time is SOURCE_DATE_EPOCH, its number a hash.
"""

import argparse
import datetime
import functools
import hashlib
import json
import os
import re
import subprocess
import uuid

OWN_LIBRARIES = re.compile(r"(lib)?(VendorInfoFile|vif)[^/]*\.(so[.\d]*|dll)$")
OWN_FOLDERS = ("analysis", "c", "cli", "field", "host", "readers", "static", "testsuite", "vif")
# Their functions are in libraries that the bill names anyway.
HEADERS_OF_LIBRARIES = re.compile(r"(libc6|linux-libc|libstdc\+\+|libgcc|libxml2|libicu|mingw-w64|gcc|g\+\+)\S*")
# By the beginning of a package's name, the longest first.
LICENCES = {
    "doxygen-awesome-css": "MIT",
    "doxygen": "GPL-2.0-only",
    "gcc": "GPL-3.0-or-later WITH GCC-exception-3.1",
    "libc6": "LGPL-2.1-or-later",
    "libcli11": "BSD-3-Clause",
    "libgcc": "GPL-3.0-or-later WITH GCC-exception-3.1",
    "liblzma": "0BSD",
    "libstdc++": "GPL-3.0-or-later WITH GCC-exception-3.1",
    "libxml2": "MIT",
    "nlohmann-json3": "MIT",
    "zlib1g": "Zlib",
}


def run(*command, may_fail=False):
    environment = dict(os.environ, LC_ALL="C")
    errors = subprocess.DEVNULL if may_fail else None
    return subprocess.run(command, check=not may_fail, env=environment, stdout=subprocess.PIPE, stderr=errors, text=True).stdout


@functools.lru_cache(maxsize=None)
def debian_package(path):
    """The name, version and architecture of the package that a file belongs to; None if it belongs to none."""
    # A package may own the file under a name without /usr, which is a link since the directories were merged.
    for name in (path, os.path.realpath(path), path.removeprefix("/usr"), "/usr" + path):
        # The search fails for a file that belongs to no package.
        owner = run("dpkg-query", "--search", name, may_fail=True).split(": ")[0].split(",")[0]
        if owner:
            fields = run("dpkg-query", "--show", "--showformat", "${Package} ${Version} ${Architecture}", owner)
            return tuple(fields.split())
    return None


def component(kind, name, **more):
    return {"type": kind, "name": name, **{key.replace("_", "-"): value for key, value in more.items() if value}}


def library_of_package(package, how):
    name, version, architecture = package
    purl = f"pkg:deb/debian/{name}@{version}?arch={architecture}".replace("+", "%2B")
    licence = next((value for key, value in LICENCES.items() if name.startswith(key)), None)
    return component(
        "library",
        name,
        bom_ref=purl,
        version=version,
        purl=purl,
        licenses=[{"expression": licence}] if licence else None,
        properties=[{"name": "vendorinfofile:link", "value": how}],
    )


def library_without_package(name, how):
    return component("library", name, bom_ref=f"library:{name}",
                     properties=[{"name": "vendorinfofile:link", "value": how}])


def files_of(root, output):
    """The files of a package, by their path in it."""
    found = {}
    for folder, folders, names in os.walk(root):
        folders[:] = sorted(name for name in folders if os.path.join(folder, name) != os.path.join(root, "DEBIAN"))
        for name in names:
            path = os.path.join(folder, name)
            if os.path.isfile(path) and not os.path.islink(path) and path != output:
                found[os.path.relpath(path, root)] = path
    return dict(sorted(found.items()))


def head_of(path):
    with open(path, "rb") as file:
        return file.read(4)


def needed_by(path):
    """The libraries that a program or library loads, by their names."""
    head = head_of(path)
    if head == b"\x7fELF":
        return re.findall(r"\(NEEDED\).*\[(.*)\]", run("readelf", "--wide", "--dynamic", path))
    if head[:2] == b"MZ":
        return re.findall(r"DLL Name: (\S+)", run("objdump", "-p", path))
    return []


def loaded_library(name):
    compiler = "x86_64-w64-mingw32-g++-posix" if name.lower().endswith(".dll") else "g++"
    path = run(compiler, f"-print-file-name={name}").strip()
    package = debian_package(os.path.normpath(path)) if os.path.isabs(path) else None
    return library_of_package(package, "dynamic") if package else library_without_package(name, "dynamic")


def archives_in(link_map):
    with open(link_map, encoding="utf-8") as file:
        # The first part of a map: which member of which archive was needed, and for what.
        names = re.findall(r"^(/\S+\.a)\(", file.read().split("Discarded input sections")[0], re.M)
    return sorted(set(os.path.normpath(name) for name in names))


def compiled_in(build, has_command):
    """The packages of the headers, of libraries without anything to link with, that the sources include."""
    headers = set()
    current = None
    for line in run("ninja", "-C", build, "-t", "deps").splitlines():
        if line and not line[0].isspace():
            current = line.split(":")[0].split("/")[0]
        elif current in OWN_FOLDERS and (has_command or current != "cli"):
            headers.add(os.path.normpath(os.path.join(build, line.strip())))
    copied = os.path.join(os.path.normpath(build), "header-only") + os.sep
    # One header speaks for its folder: to ask for each would take minutes.
    folders = {}
    for header in sorted(headers):
        header = header.replace(copied, "/usr/include/", 1) if header.startswith(copied) else header
        folder = re.match(r"/usr/(?:include|share)/[^/]+/(?=.)", header)
        if folder:
            folders.setdefault(folder[0], header)
    packages = {debian_package(header) for header in folders.values()}
    return sorted(package for package in packages if package and not HEADERS_OF_LIBRARIES.fullmatch(package[0]))


def libraries(paths, arguments):
    """The components that the package is linked with, by their references."""
    found = {}

    def add(library):
        found.setdefault(library["bom-ref"], library)

    present = {os.path.basename(path) for path in paths}
    programs = [path for path in paths.values() if head_of(path)[:2] == b"MZ" or head_of(path) == b"\x7fELF"]
    for path in programs:
        for name in needed_by(path):
            if not OWN_LIBRARIES.match(name):
                add(loaded_library(name))
            elif name not in present:
                add(component("library", name, bom_ref=f"library:{name}", version=arguments.version,
                              licenses=[{"expression": "MIT"}],
                              properties=[{"name": "vendorinfofile:link", "value": "dynamic"}]))
    if arguments.archives:
        for archive in archives_in(arguments.archives):
            package = debian_package(archive)
            if package:
                add(library_of_package(package, "static"))
    for included in arguments.included:
        add(library_of_package(debian_package(included), "included"))
    if programs:
        has_command = any(os.path.basename(path) in ("vif", "vif.exe") for path in programs)
        for package in compiled_in(arguments.build, has_command):
            add(library_of_package(package, "header-only"))
    return dict(sorted(found.items()))


def file_component(name, path):
    with open(path, "rb") as file:
        digest = hashlib.sha256(file.read()).hexdigest()
    return component("file", name, bom_ref=f"file:{name}", hashes=[{"alg": "SHA-256", "content": digest}])


def bill(arguments):
    paths = files_of(arguments.root, arguments.output)
    linked = libraries(paths, arguments)
    moment = datetime.datetime.fromtimestamp(int(os.environ["SOURCE_DATE_EPOCH"]), datetime.timezone.utc)
    own = f"package:{arguments.name}"
    result = {
        "bomFormat": "CycloneDX",
        "specVersion": "1.5",
        "version": 1,
        "metadata": {
            "timestamp": moment.strftime("%Y-%m-%dT%H:%M:%SZ"),
            "lifecycles": [{"phase": "build"}],
            "component": component("application", arguments.name, bom_ref=own, version=arguments.version,
                                   licenses=[{"expression": "MIT"}]),
        },
        "components": list(linked.values()) + [file_component(*item) for item in paths.items()],
        "dependencies": [{"ref": own, "dependsOn": list(linked)}] + [{"ref": reference} for reference in linked],
    }
    digest = hashlib.sha256(json.dumps(result, sort_keys=True).encode()).digest()
    result["serialNumber"] = f"urn:uuid:{uuid.UUID(bytes=digest[:16], version=5)}"
    return result


def main():
    parser = argparse.ArgumentParser()
    parser.add_argument("--name", required=True)
    parser.add_argument("--version", required=True)
    parser.add_argument("--build", required=True)
    parser.add_argument("--archives")
    parser.add_argument("--included", action="append", default=[])
    parser.add_argument("root")
    parser.add_argument("output")
    arguments = parser.parse_args()
    text = json.dumps(bill(arguments), indent=1, sort_keys=True) + "\n"
    os.makedirs(os.path.dirname(arguments.output), exist_ok=True)
    with open(arguments.output, "w", encoding="utf-8") as file:
        file.write(text)
    os.chmod(arguments.output, 0o644)


if __name__ == "__main__":
    main()
