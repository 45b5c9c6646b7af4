#!/usr/bin/env python3
"""Makes the Debian package of a build folder, installs it below an empty root, uses it as a stranger would, removes it.

    tests/package/check_package.py BUILD_FOLDER

The machine's own packages are not touched. What lintian has to say is an error unless ANSWERED gives a reason.
"""

import os
import pathlib
import shutil
import subprocess
import sys
import tempfile

# lintian's tags that stand, each with its reason.
ANSWERED = {
    "initial-upload-closes-no-bugs": "the package is not uploaded to Debian",
    "unknown-section": "science is Debian's; an older lintian may not list it",
}
EXPECTED = [
    "usr/bin/terravane",
    "usr/bin/terravane-script",
    "usr/bin/terravane-report",
    "usr/share/applications/terravane.desktop",
    "usr/share/mime/packages/terravane.xml",
    "usr/share/icons/hicolor/scalable/apps/terravane.svg",
    "usr/share/man/man1/terravane.1.gz",
    "usr/share/man/man1/terravane-script.1.gz",
    "usr/share/man/man1/terravane-report.1.gz",
    "usr/share/doc/terravane/copyright",
    "usr/share/doc/terravane/changelog.gz",
    "usr/share/terravane/samples/TRVN_road.mdb",
    "usr/share/terravane/samples/road/00_project.trv",
    "usr/share/terravane/UserGuide.pdf",
]
SECONDS = 100


def run(*command, **options):
    """What the command prints on both streams; ends the test where it fails."""
    ran = subprocess.run([str(word) for word in command], stdout=subprocess.PIPE, stderr=subprocess.STDOUT, text=True,
                         timeout=SECONDS, check=False, **options)
    if ran.returncode:
        sys.exit(f"{' '.join(map(str, command))} ended with {ran.returncode}:\n{ran.stdout}")
    return ran.stdout


def make_package(build, folder):
    run("cpack", "-G", "DEB", "--config", build / "CPackConfig.cmake", "-B", folder)
    packages = list(folder.glob("*.deb"))
    assert len(packages) == 1, f"cpack made {packages}"
    return packages[0]


def check_lintian(package):
    """Remarks and their tags: 'W: terravane: tag ...'."""
    said = subprocess.run(["lintian", "--allow-root", "--tag-display-limit", "0", package], stdout=subprocess.PIPE,
                          stderr=subprocess.STDOUT, text=True, timeout=SECONDS, check=False).stdout
    remarks = [line for line in said.splitlines() if line[:2] in ("E:", "W:")]
    open_remarks = [line for line in remarks if line.split()[2] not in ANSWERED]
    assert not open_remarks, "lintian: " + "\n".join(open_remarks)


def check_depends(package):
    depends = run("dpkg-deb", "-f", package, "Depends")
    for name in ("libqt6widgets6", "fonts-tlwg-loma-ttf", "fonts-liberation"):
        assert name in depends, f"The package does not depend on {name}: {depends}"


class Root:
    """An empty root folder with a package database of its own."""

    def __init__(self, folder):
        self.folder = folder
        for part in ("var/lib/dpkg/info", "var/lib/dpkg/updates", "var/lib/dpkg/triggers"):
            (folder / part).mkdir(parents=True)
        (folder / "var/lib/dpkg/status").touch()

    def dpkg(self, *words):
        return run("dpkg", f"--root={self.folder}", "--force-depends", "--force-not-root", "--log=/dev/null", *words)

    def files(self):
        return {str(path.relative_to(self.folder)) for path in self.folder.rglob("*")
                if path.is_file() and not path.is_relative_to(self.folder / "var/lib/dpkg")}


def use(root, home):
    """A report from the installed sample, and the desktop's first start, by a user who may not write into the root."""
    binaries = root.folder / "usr/bin"
    sample = home / "TRVN_road.mdb"
    shutil.copy(root.folder / "usr/share/terravane/samples/TRVN_road.mdb", sample)
    env = {**os.environ, "HOME": str(home), "XDG_DATA_HOME": str(home / "data"), "QT_QPA_PLATFORM": "offscreen"}
    run(binaries / "terravane-report", "--tests", "std", "--materials", "soil", sample, env=env, cwd=home)
    assert list(home.rglob("*.pdf")), "terravane-report made no PDF."
    desktop = subprocess.Popen([binaries / "terravane", sample], env=env, cwd=home, stdout=subprocess.PIPE,
                               stderr=subprocess.STDOUT)
    brand = home / "data/terravane/BrandList/logo.mdb"
    try:
        desktop.wait(timeout=3)
        sys.exit(f"The desktop ended by itself: {desktop.stdout.read().decode()}")
    except subprocess.TimeoutExpired:
        desktop.kill()
        desktop.wait()
    assert brand.exists(), f"The brand store is not in the user's folder, {brand}."
    assert (brand.parent / "UserGuide.pdf").exists(), "The guide is not in the user's folder."


def main(build):
    with tempfile.TemporaryDirectory(prefix="terravane-package-") as outer:
        folder = pathlib.Path(outer)
        package = make_package(build, folder / "made")
        check_depends(package)
        check_lintian(package)
        run("desktop-file-validate", pathlib.Path(__file__).parents[2] / "packaging/terravane.desktop")
        root = Root(folder / "root")
        root.dpkg("-i", package)
        missing = [name for name in EXPECTED if name not in root.files()]
        assert not missing, f"The package lacks {missing}."
        before = root.files()
        home = folder / "home"
        home.mkdir()
        use(root, home)
        assert root.files() == before, f"Using the programs changed what is installed: {root.files() ^ before}"
        root.dpkg("-r", "terravane")
        assert not root.files(), f"Removal left {root.files()}"
        print(f"{package.name}: {package.stat().st_size / 1e6:.1f} MB, {len(EXPECTED)} expected files, used and removed")


if __name__ == "__main__":
    main(pathlib.Path(sys.argv[1]).resolve())
