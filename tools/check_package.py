#!/usr/bin/env python3
"""Checks the Debian package as its users meet it; prints one line for each finding.

tools/check_package.py [PACKAGE]   the one in build/package without an argument
"""
import gzip
import os
import pathlib
import random
import re
import subprocess
import sys
import tempfile

ROOT = pathlib.Path(__file__).resolve().parent.parent
findings = []


def run(*command, **more):
    return subprocess.run([str(part) for part in command], text=True, capture_output=True, **more)


def judge(what, result):
    """A checker that fails or has something to say has found something."""
    said = (result.stdout + result.stderr).strip()
    if result.returncode != 0 or said:
        findings.append(f"{what}: {said or result.returncode}")


def expect(holds, finding):
    if not holds:
        findings.append(finding)


def check_by_others(package, share):
    judge("lintian", run("lintian", "--allow-root", "--fail-on", "error,warning", package))
    judge("desktop-file-validate",
          run("desktop-file-validate", share / "applications/kestrum.desktop"))
    for page in sorted(share.glob("man/man1/*.gz")):
        judge(page.name, run("mandoc", "-T", "lint", "-W", "warning", input=gzip.open(page, "rt").read()))
    for data in share.glob("metainfo/*.xml"):
        result = run("appstreamcli", "validate", "--no-net", data)
        expect(result.returncode == 0, f"appstreamcli: {result.stdout}")
    expect(len(list(share.glob("man/man1/*.gz"))) == 2, "there are two manual pages")
    expect(list(share.glob("metainfo/*.xml")), "there is no metadata for software centres")


def check_types(share, folder):
    """What a file manager takes files for, by ending and first line."""
    data = folder / "data"
    (data / "mime/packages").mkdir(parents=True)
    (data / "mime/packages/kestrum.xml").write_text((share / "mime/packages/kestrum.xml").read_text())
    run("update-mime-database", data / "mime")
    head = (ROOT / "examples/bmw_m52b28.dat").read_bytes()
    test = "application/x-kestrum-flow-test"
    cases = {"head.dat": (head, test), "marked.dat": (b"\xef\xbb\xbf" + head, test),
             "head": (head, test), "notes.dat": (b"just words\n", "text/plain"),
             "film.dat": (random.Random(1).randbytes(500), "application/octet-stream"),
             "engine.dta": (b"Text101_3 = 4\r\n", "application/x-kestrum-engine"),
             "our.gui": (b"a = b\r\n", "application/x-kestrum-look"),
             "our.dcn": (b"Company Name = X\r\n", "application/x-kestrum-company")}
    for name, (content, wanted) in cases.items():
        (folder / name).write_bytes(content)
        said = run("gio", "info", "-a", "standard::content-type", folder / name,
                   env={**os.environ, "XDG_DATA_HOME": str(data)}).stdout
        expect(said.strip().endswith(": " + wanted), f"{name} is no {wanted}: {said.split()[-1:]}")


def options_of(usage):
    return set(re.findall(r"(?:(?<=[\s\[])|^)--?[a-z][a-z-]*", usage))


def completed(share, program, *words):
    script = (f'source "{share}/bash-completion/completions/kestrum-cli"; COMP_WORDS=("$@"); '
              'COMP_CWORD=$(($# - 1)); _kestrum_cli; printf "%s\\n" "${COMPREPLY[@]}"')
    return set(run("bash", "-c", script, "bash", program, *words).stdout.split())


def check_command_line(share, program):
    """Usage, reading of the arguments, manual page and completion name the same options."""
    page = run("mandoc", "-T", "ascii", "-O", "width=500",
               input=gzip.open(share / "man/man1/kestrum-cli.1.gz", "rt").read()).stdout
    page = re.sub(".\b", "", page)
    verbs = re.findall(r"^.{6,}kestrum-cli ([a-z]+)", run(program, "--help").stdout, re.M)
    expect(len(verbs) == 9, f"nine verbs are told by --help: {verbs}")
    expect(completed(share, program, "") == {*verbs, "--help", "--version"}, "the verbs are not completed")
    told = set()
    for verb in verbs:
        options = options_of(run(program, verb, "--help").stdout)
        told |= options
        expect(completed(share, program, verb, "-") == options | {"--help"},
               f"{verb}: {completed(share, program, verb, '-')} is completed, {options} is there")
        in_page = options_of(" ".join(re.findall(rf"^ +kestrum-cli {verb} .*", page, re.M)))
        expect(in_page == options, f"{verb}: the manual page and the usage differ: {in_page ^ options}")
        for option in options:
            expect("unknown option" not in run(program, verb, option).stderr, f"{verb} knows no {option}")
    read = set()
    for source in (ROOT / "cli").glob("*.cpp"):
        read |= set(re.findall(r'\bIs\("(--?[a-z-]+)"\)', source.read_text()))
    expect(len(read) > 30 and read <= told, f"these options are told nowhere: {read - told}")
    expect(completed(share, program, "chart", "--side", "") == {"intake", "exhaust", "both"},
           "the values of an option are not completed")
    expect(len(completed(share, program, "compare", "a.dat", "b.dat", "--type", "")) == 18,
           "the types of the comparison are not completed")


def check_programs(top, folder):
    """Both programs find what they need from a place that they were not built for."""
    picture = folder / "graph.png"
    head = ROOT / "examples/jeep_4l_stock_table_1.dat"
    judge("graph", run(top / "bin/kestrum-cli", "graph", head, head, "--type", "0", "-o", picture))
    expect(picture.exists() and picture.read_bytes().startswith(b"\x89PNG"), "no picture was painted")
    version = re.search(r"VERSION ([0-9.]+)", (ROOT / "CMakeLists.txt").read_text().split("project(")[1])[1]
    expect(run(top / "bin/kestrum", "--version").stdout == f"kestrum {version}\n", "kestrum does not start")
    for size in (16, 22, 24, 32, 48, 64, 128, 256, 512):
        icon = top / f"share/icons/hicolor/{size}x{size}/apps/kestrum.png"
        sides = icon.read_bytes()[16:24] if icon.exists() else b""
        expect(sides == size.to_bytes(4, "big") * 2, f"there is no icon of {size} dots")


def check_pages(documents):
    """Every link within the documents leads to something."""
    for page in documents.glob("*.html"):
        for target, anchor in re.findall(r'(?:href|src)="(?!https?:|mailto:)([^"#]*)#?([^"]*)"', page.read_text()):
            file = documents / target if target else page
            found = file.exists() or file.with_name(file.name + ".gz").exists()
            if found and anchor and file.suffix == ".html":
                found = f'id="{anchor}"' in file.read_text()
            expect(found, f"{page.name}: a link leads nowhere: {target}#{anchor}")
    expect((documents / "manual.html").exists(), "the manual is not there as a page")
    code = (ROOT / "desktop/manual.cpp").read_text()
    for chapter in re.findall(r'return QStringLiteral\("([a-z-]+)"\);', code):
        expect((documents / f"manual-{chapter}.html").exists(), f"F1 has no page that leads to {chapter}")


def main():
    packages = [pathlib.Path(name) for name in sys.argv[1:]] or list(ROOT.glob("build/package/*"))
    expect(len(packages) == 1, f"there is not one package: {packages}")
    with tempfile.TemporaryDirectory() as name:
        folder = pathlib.Path(name)
        run("dpkg-deb", "-x", packages[0], folder / "tree")
        top = folder / "tree/usr"
        check_by_others(packages[0], top / "share")
        check_types(top / "share", folder)
        check_command_line(top / "share", top / "bin/kestrum-cli")
        check_programs(top, folder)
        check_pages(top / "share/doc/kestrum")
    print("\n".join(findings) or "The package is as it should be")
    return bool(findings)


if __name__ == "__main__":
    sys.exit(main())
