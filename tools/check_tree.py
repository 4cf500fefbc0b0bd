#!/usr/bin/env python3
"""Checks of the source tree that no compiler makes; prints one line for each finding.

tools/check_tree.py              looks at every file that git tracks or would track
tools/check_tree.py --self-test  proves with bad samples that each check can fail
"""
import os
import pathlib
import re
import subprocess
import sys

ROOT = pathlib.Path(__file__).resolve().parent.parent

# Who may include whom: a folder includes itself and folders of a lower rank.
RANKS = {"base": 0, "platform": 1, "screens": 1, "drawing": 2, "core": 3,
         "records": 4, "engine": 4, "sheet": 4, "graph": 4, "chart": 4, "presentation": 4,
         "files": 5, "output": 5, "exchange": 6, "library": 7,
         "painting": 3, "application": 8, "desktop": 9, "cli": 9, "tests": 10, "bench": 11, "fuzz": 11}

QT_PLACES = re.compile(r"desktop/|painting/|tests/(?:desktop/|graph_painting)|bench/(?:desktop|bare_window|graph_bench)")
QT_INCLUDE = re.compile(r"^[ \t]*#[ \t]*include[ \t]*[<\"]((?:Qt?[A-Z]|q[a-z]+\.h|private/q)[^>\"]*)", re.M)

# What touches the system lies in one folder for each of them, so that nothing else asks which one it is.
SYSTEM_PLACES = re.compile(r"(?:src/platform|tests|tests/desktop)/(?:posix|windows)/")
SYSTEM_INCLUDE = re.compile(
    r"^[ \t]*#[ \t]*include[ \t]*[<\"]((?:sys|arpa|net|netinet|linux)/[^>\"]+|c?signal(?:\.h)?|(?:unistd|fcntl|io|poll"
    r"|dirent|dlfcn|langinfo|pthread|pwd|grp|termios|windows|win\w+|ws2\w+|aclapi|sddl|shellapi|shlobj|mmsystem)\.h)[>\"]"
    r"|^[ \t]*#[ \t]*(?:el)?if[^\n]*?\b(_WIN32|_WIN64|__MINGW\w+|_MSC_VER|__linux__|__unix__|__APPLE__|Q_OS_\w+)\b",
    re.M)

# Calls that follow the locale, or round or read numbers in another way than src/core does.
LOCALE_WORDS = re.compile(
    r"\b(?:ato(?:f|i|l|ll)|strto(?:d|f|ld|u?l|u?ll)|sto(?:d|f|ld|i|u?l|u?ll)|to_w?string"
    r"|v?(?:f|s|sn|as|d)?w?printf|v?[fs]?w?scanf|std::v?format(?:_to)?"
    r"|is(?:alnum|alpha|blank|cntrl|digit|graph|lower|print|punct|space|upper|xdigit)"
    r"|to(?:lower|upper)|setlocale|localeconv|strftime|put_time|get_time|std::locale|strcoll"
    r"|[io]?stringstream|setprecision|std::(?:fixed|scientific|hexfloat|cout|cerr|clog|wcout)"
    r"|QLocale|QTextStream|QString::(?:number|asprintf)|setNum"
    r"|(?<=\.)(?:arg|toDouble|toFloat)(?=\())\b")
# (file, word): why it is no danger there. An entry that is not needed any more is a finding.
LOCALE_EXCEPTIONS = {
    ("desktop/start_options.cpp", "QLocale"): "asks once for the decimal separator of the user's system",
}

NAME = re.compile(r"(?:[A-Z][a-z0-9]*|[A-Z][A-Z0-9]*)(?:_(?:[A-Z0-9][a-z0-9]*|[A-Z0-9]+))*")
FILE_NAME = re.compile(r"[a-z0-9]+(?:_[a-z0-9]+)*(?:\.[a-z0-9]+)+|CMakeLists\.txt")
# Names that the language or the standard library looks for.
STANDARD_NAMES = {"main", "begin", "end", "size", "what", "swap", "hash", "value_type", "iterator",
                  "const_iterator", "difference_type", "reference", "pointer", "iterator_category"}

# Put together from pieces, or this file would be the first finding.
WORDS = re.compile("|".join((
    r"\bsp" r"ec(?:ification)?s?\b", r"\bP" r"arts? [1-8]\.[1-9]", r"\brul" r"ing",
    r"\bseed d" r"ocument", r"order of b" r"uilding", r"shared/(?:sp" r"ec|style|design)")), re.I)
MACHINE_PATHS = re.compile(r"(?<![\w.)}~/-])/(?:wo" r"rk|ro" r"ot|fa" r"rm|t" r"mp)/")

MOST_LINES = 500
# Pure tables, which are best read in one piece.
LONG_TABLES = set()

SOURCE = re.compile(r"(?:src|painting|cli|desktop|tests|bench|fuzz)/.*\.(?:h|cpp)")
TOKENS = re.compile(
    r"(?P<comment>//[^\n]*|/\*.*?\*/)"
    r"|(?P<text>R\"(?P<mark>\w*)\(.*?\)(?P=mark)\"|\"(?:\\.|[^\"\\\n])*\"|(?<![0-9])'(?:\\[^\n]{1,9}?|[^'\\\n])')", re.S)


def blank(text):
    """Blanks that take the place of a text and keep its line ends."""
    return re.sub(r"[^\n]", " ", text)


def without_comments(text):
    return TOKENS.sub(lambda m: blank(m[0]) if m["comment"] else m[0], text)


def code_of(text):
    """The text with comments, string literals and character literals blanked."""
    return TOKENS.sub(lambda m: blank(m[0]), text)


def line_of(text, place):
    return text.count("\n", 0, place) + 1


def sources(tree):
    return {path: text for path, text in tree.items() if SOURCE.fullmatch(path)}


# The order of the folders

def folder_of(path):
    parts = path.split("/")
    return parts[1] if parts[0] == "src" and len(parts) > 2 else parts[0]


def includes_of(path, text, known):
    """Includes that are not the system's: (line, name as written, path in the tree or None)."""
    for match in re.finditer(r"^[ \t]*#[ \t]*include[ \t]*([<\"])([^>\"]+)", without_comments(text), re.M):
        roots = [os.path.dirname(path), "src", ""]
        places = [os.path.normpath(os.path.join(root, match[2])) for root in roots]
        # A header that CMake makes stands in the tree with ".in" behind its name.
        found = next((p for p in places if p in known or p + ".in" in known), None)
        if found or match[1] == '"':
            yield line_of(text, match.start(2)), match[2], found


def check_qt(tree):
    for path, text in sources(tree).items():
        if not QT_PLACES.match(path):
            for match in QT_INCLUDE.finditer(without_comments(text)):
                yield path, line_of(text, match.start(1)), f"includes {match[1]}: Qt stays in desktop/ and painting/"
    for path, text in tree.items():
        if path.startswith("src/") and path.endswith("CMakeLists.txt"):
            for match in re.finditer(r"^[^#\n]*\b(Qt6?::\w+|kestrum_qt_flags)", text, re.M):
                yield path, line_of(text, match.start(1)), f"links {match[1]}: src/ does without Qt"


def check_system(tree):
    for path, text in sources(tree).items():
        if not SYSTEM_PLACES.match(path):
            for match in SYSTEM_INCLUDE.finditer(without_comments(text)):
                yield path, line_of(text, match.start(1 if match[1] else 2)), (
                    f"{match[1] or match[2]}: what hangs on the system stays in posix/ and windows/")


def check_directions(tree):
    for path, text in sources(tree).items():
        folder = folder_of(path)
        if folder not in RANKS:
            yield path, 1, f"the folder {folder} has no rank in tools/check_tree.py"
            continue
        for line, name, found in includes_of(path, text, tree):
            if found is None:
                # Else an include path of its own would get round the order of the folders.
                if not name.endswith(".moc"):
                    yield path, line, f"{name} lies neither beside the file nor in src/"
                continue
            other = folder_of(found)
            if other != folder and RANKS.get(other, 99) >= RANKS[folder]:
                yield path, line, f"includes {name}: {folder} does not stand above {other}"


def check_cycles(tree):
    files = sources(tree)
    graph = {path: [(line, found) for line, _, found in includes_of(path, text, files) if found in files]
             for path, text in files.items()}
    done = set()

    def walk(path, way):
        for line, found in graph[path]:
            if found in way:
                yield path, line, "circle of includes: " + " > ".join(way[way.index(found):] + [found])
            elif found not in done:
                yield from walk(found, way + [found])
        done.add(path)

    for path in graph:
        if path not in done:
            yield from walk(path, [path])


# Calls

def check_locale(tree):
    needed = set()
    for path, text in sources(tree).items():
        if not path.startswith(("src/", "painting/", "cli/", "desktop/")):
            continue
        for match in LOCALE_WORDS.finditer(code_of(text)):
            # The command-line program prints finished lines, no numbers.
            if path.startswith("cli/") and match[0] in ("std::cout", "std::cerr"):
                continue
            if (path, match[0]) in LOCALE_EXCEPTIONS:
                needed.add((path, match[0]))
                continue
            yield (path, line_of(text, match.start()),
                   f"{match[0]} follows the locale or its own rules: read and write numbers with src/core")
    for path, word in LOCALE_EXCEPTIONS.keys() - needed:
        yield "tools/check_tree.py", 1, f"the exception of {word} for {path} is not needed any more"


# Names

TYPE_HEAD = re.compile(
    r"(?:(?:public|protected|private|Q_OBJECT|Q_SIGNALS|typedef|template\s+)\s*:?\s*)*"
    r"(?:(?:class|struct|union|enum(?:\s+(?:class|struct))?)\s+(\w+)(?![\w\s]*\()|using\s+(\w+)\s*=)")
NO_ROUTINES = {"decltype", "noexcept", "alignas", "requires", "explicit", "static_assert", "void"}


def name_in(statement):
    """The type or routine that a statement outside of routines declares: (place, name) or None."""
    head = TYPE_HEAD.match(statement)
    if head:
        which = 1 if head[1] else 2
        return head.start(which), head[which]
    call = next((m for m in re.finditer(r"(\w+)\s*\(", statement) if m[1] not in NO_ROUTINES), None)
    if (not call or "=" in statement[:call.start()] or statement.startswith(",")
            or re.match(r".*\b(operator|override|using|friend)\b", statement, re.S)):
        return None
    return call.start(1), call[1]


def declared_names(text):
    """Types and routines that a header declares, as (place, name); bodies are passed over."""
    code = code_of(text)
    for noise in (r"^[ \t]*#(?:[^\n]*\\\n)*[^\n]*", r"\[\[.*?\]\]"):
        code = re.sub(noise, lambda m: blank(m[0]), code, flags=re.M | re.S if "[[" in noise else re.M)
    before = None
    while code != before:  # innermost angle brackets first
        before, code = code, re.sub(r"<[^<>;{}]*>", lambda m: blank(m[0]), code)
    bodies = 0  # how many braces deep we are in something that declares nothing
    start = 0
    for mark in re.finditer(r"[;{}]", code):
        statement = code[start:mark.start()]
        offset = start + len(statement) - len(statement.lstrip())
        statement = statement.strip()
        start = mark.end()
        if mark[0] == "}":
            bodies = max(0, bodies - 1)
            continue
        found = name_in(statement) if bodies == 0 else None
        if found:
            yield offset + found[0], found[1]
        opens_scope = re.match(r"(inline\s+)?namespace\b|extern\b", statement) or (
            found and re.search(r"\b(class|struct|union)\s+\w+(?![\w\s]*\()", statement)
            and not re.search(r"\benum\b", statement))
        if mark[0] == "{" and (bodies > 0 or not opens_scope):
            bodies += 1


def check_names(tree):
    for path, text in sources(tree).items():
        if path.startswith(("src/", "painting/", "cli/", "desktop/")) and path.endswith(".h"):
            for place, name in declared_names(text):
                if name not in STANDARD_NAMES and not NAME.fullmatch(name):
                    yield path, line_of(text, place), f"{name} is not written Like_This"
    for path in tree:
        name = path.rsplit("/", 1)[-1]
        if (SOURCE.fullmatch(path) or path.endswith(".py")) and not FILE_NAME.fullmatch(name):
            yield path, 1, "the file is not named like_this"


# Words, lengths and lists

def check_words(tree):
    for path, text in tree.items():
        for pattern, what in ((WORDS, "is no word of this project"),
                              (MACHINE_PATHS, "is a path of one machine")):
            for match in pattern.finditer(path):
                yield path, 1, f"{match[0]} in the name {what}"
            for match in pattern.finditer(text):
                yield path, line_of(text, match.start()), f"{match[0]} {what}"


def check_lengths(tree):
    for path, text in tree.items():
        if SOURCE.fullmatch(path) or path.endswith((".py", ".sh")):
            lines = len(text.splitlines())
            if lines > MOST_LINES and path not in LONG_TABLES:
                yield path, lines, f"{lines} lines, over {MOST_LINES}: divide it"
            if lines <= MOST_LINES and path in LONG_TABLES:
                yield path, lines, "need not stand among the long tables any more"


def check_lists(tree):
    named = set()
    for path, text in tree.items():
        if path == "CMakeLists.txt" or path.endswith("/CMakeLists.txt"):
            folder = os.path.dirname(path)
            for word in re.findall(r"[^\s()\"]+", re.sub(r"#[^\n]*", "", text)):
                named.add(os.path.normpath(os.path.join(folder, word)))
    for path in sources(tree):
        if path.endswith(".cpp") and path not in named:
            yield path, 1, "stands in no CMakeLists.txt"


CHECKS = (check_qt, check_system, check_directions, check_cycles, check_locale, check_names, check_words,
          check_lengths, check_lists)


def read_tree():
    listed = subprocess.run(["git", "ls-files", "-z", "--cached", "--others", "--exclude-standard"],
                            cwd=ROOT, check=True, capture_output=True).stdout.decode()
    tree = {}
    for path in sorted(set(listed.split("\0")) - {""}):
        if (ROOT / path).is_file():
            content = (ROOT / path).read_bytes()
            # Of a picture and the like only the name can be looked at.
            tree[path] = "" if b"\0" in content else content.decode(errors="replace")
    return tree


def findings(checks, tree):
    return sorted({f"{path}:{line}: {what}" for check in checks for path, line, what in check(tree)})


def main():
    if sys.argv[1:] == ["--self-test"]:
        # Here, since the samples are of use to nobody else.
        import check_tree_samples
        sys.exit(check_tree_samples.run(sys.modules[__name__]))
    if sys.argv[1:]:
        sys.exit("usage: tools/check_tree.py [--self-test]")
    tree = read_tree()
    if not tree:
        sys.exit("check_tree.py: there is no file to look at")
    found = findings(CHECKS, tree)
    for line in found:
        print(line)
    print(f"Tree: {len(tree)} files, {len(found)} findings")
    sys.exit(1 if found else 0)


if __name__ == "__main__":
    main()
