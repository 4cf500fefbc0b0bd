"""Small trees on which tools/check_tree.py proves itself.

GOOD must pass all checks. Each of BAD names a check, a tree, and the lines that it must find there,
no more and no fewer, each with a word of its message.
"""

GOOD = {
    "src/CMakeLists.txt": "add_library(kestrum_core STATIC\n  core/real.cpp # core/lost.cpp\n)\n",
    "src/core/real.h": """#pragma once
#include "platform/file_store.h"
#include <functional>
// printf, to_string and <QString> in a comment are nobody's business.
namespace kestrum {
class Screen;
enum class Box_Icon { None, Ok_Cancel };
using Colour = int;
#define QUIET(x) \\
    do_nothing(x)
template <typename T>
[[nodiscard]] constexpr T Half(T value) { return value / helper(2); }
struct Run_Time_Error : Base<int> {
    explicit Run_Time_Error(int number) : number(number), text{make(number)}, cause(nullptr) {}
    ~Run_Time_Error() override;
    const char* what() const noexcept override { return "atof("; }
    bool operator==(const Run_Time_Error&) const = default;
    void paintEvent(QPaintEvent* event) override;
    std::function<void(int)> on_change;
    int number = make(1'000);
    char mark = '"', other = ';';
    void Calc_Flow_US(int side = {});
};
} // namespace kestrum
""",
    "src/core/real.cpp": '#include "core/real.h"\nconst char* text = R"(stod(1) isdigit)";\n',
    "src/platform/file_store.h": "#pragma once\nint Text104(int index);\n",
    "desktop/CMakeLists.txt": "add_executable(kestrum main_window.cpp)\n",
    "desktop/main_window.cpp": '#include <QWidget>\n#include "core/real.h"\n#include "main_window.moc"\n',
    "docs/a manual.md": "A specific and inspected word; ${HOME}/wo" "rk/x and frame" "wo" "rk/rules.\n",
}

BAD = (
    ("check_qt", {"src/core/a.h": "#include <QString>\n", "cli/b.cpp": "\n#include <QtGui/QImage>\n",
                  "tests/c.cpp": "#include <qstring.h>\n", "painting/d.cpp": "#include <QImage>\n",
                  "src/CMakeLists.txt": "target_link_libraries(kestrum_core Qt6::Core)\n"},
     {"src/core/a.h:1": "QString", "cli/b.cpp:2": "QtGui/QImage", "tests/c.cpp:1": "qstring.h",
      "src/CMakeLists.txt:1": "Qt6::Core"}),
    ("check_system", {"src/core/a.cpp": "#include <unistd.h>\n#include <unordered_map>\n// #include <poll.h>\n",
                      "src/platform/b.cpp": "\n#include <sys/stat.h>\n", "desktop/c.cpp": "#ifdef _WIN32\n#endif\n",
                      "cli/d.h": "#if 1 && defined(__linux__)\n#elif defined(Q_OS_WIN)\n#endif\n",
                      "tests/e.cpp": "#include <csignal>\n#include <windows.h>\n#include \"screens/windows.h\"\n",
                      "src/platform/posix/f.cpp": "#include <unistd.h>\n",
                      "tests/windows/g.cpp": "#include <windows.h>\n"},
     {"src/core/a.cpp:1": "unistd.h", "src/platform/b.cpp:2": "sys/stat.h", "desktop/c.cpp:1": "_WIN32",
      "cli/d.h:1": "__linux__", "cli/d.h:2": "Q_OS_WIN", "tests/e.cpp:1": "csignal", "tests/e.cpp:2": "windows.h"}),
    ("check_directions", {"src/core/a.h": "\n#include \"engine/b.h\"\n", "src/engine/b.h": "",
                          "src/engine/c.cpp": "#include \"../sheet/d.h\"\n#include <desktop/e.h>\n",
                          "src/sheet/d.h": "#include \"core/a.h\"\n#include \"f.h\"\n", "desktop/e.h": "",
                          "src/attic/g.h": "", "painting/h.h": "#include \"core/a.h\"\n"},
     {"src/core/a.h:2": "core does not stand above engine", "src/engine/c.cpp:1": "above sheet",
      "src/engine/c.cpp:2": "above desktop", "src/sheet/d.h:2": "f.h", "painting/h.h:1": "painting does not stand above core", "src/attic/g.h:1": "attic"}),
    ("check_cycles", {"src/core/a.h": "#include \"core/b.h\"\n", "src/core/b.h": "\n#include \"c.h\"\n",
                      "src/core/c.h": "#include \"core/a.h\"\n", "src/core/d.h": "#include \"core/a.h\"\n"},
     {"src/core/c.h:1": "src/core/a.h > src/core/b.h > src/core/c.h > src/core/a.h"}),
    ("check_locale", {"src/core/a.cpp": "x = atof(y);\n// printf\nstd::to_string(1);\nstd::snprintf(b);\n"
                                        "std::format(b);\nf(::tolower);\nstd::ostringstream s;\n"
                                        "std::cout << 1;\nv.arg = 1;\nstd::locale l;\nstrtod(p);\n",
                      "cli/b.cpp": "std::cout << text;\nsetlocale(0);\nif (isdigit(c)) {}\n",
                      "desktop/c.cpp": "QString::number(1);\nx.toDouble();\nt.arg(3);\nQLocale l;\n",
                      "painting/e.cpp": "QString::number(1);\n",
                      "tests/d.cpp": "std::stod(x);\n"},
     {**{f"src/core/a.cpp:{n}": "" for n in (1, 3, 4, 5, 6, 7, 8, 10, 11)},
      "painting/e.cpp:1": "QString::number", "cli/b.cpp:2": "setlocale", "cli/b.cpp:3": "isdigit",
      **{f"desktop/c.cpp:{n}": "" for n in (1, 2, 3, 4)}}),
    ("check_names", {"src/core/a.h": "namespace x {\nclass BadName;\nstruct Bad_name {\n  int getIt() const;\n"
                                     "  void Fine();\n  void Bad__One() { call(); }\n};\n"
                                     "enum class kind { a };\nusing text_map = int;\nint lower(int a);\n}\n",
                     "painting/c.h": "int badName();\n",
                     "desktop/b.h": "class W : public Q {\nQ_OBJECT\npublic:\n  void ownSlot();\n};\n",
                     "tests/BadFile.cpp": ""},
     {**{f"src/core/a.h:{n}": "Like_This" for n in (2, 3, 4, 6, 8, 9, 10)}, "desktop/b.h:4": "ownSlot",
      "painting/c.h:1": "badName",
      "tests/BadFile.cpp:1": "like_this"}),
    ("check_words", {"docs/a.md": "the sp" "ec\nSp" "ecifications\nPa" "rt 3.2\nPa" "rts 4.1\nrul" "ing\n"
                                  "seed d" "ocument\nOrder of B" "uilding\n../shared/sty" "le.md\n",
                     "tests/sp" "ec.cpp": "", "run.sh": "\ncd /wo" "rk/main\n\"/t" "mp/x\"\n=/ro" "ot/y\n"},
     {**{f"docs/a.md:{n}": "no word" for n in range(1, 9)}, "tests/sp" "ec.cpp:1": "in the name",
      **{f"run.sh:{n}": "one machine" for n in (2, 3, 4)}}),
    ("check_lengths", {"src/core/a.cpp": "\n" * 501, "src/core/b.cpp": "\n" * 500},
     {"src/core/a.cpp:501": "501 lines"}),
    ("check_lists", {"src/CMakeLists.txt": "add_library(x core/a.cpp) # core/b.cpp\n", "src/core/a.cpp": "",
                     "src/core/b.cpp": "", "src/core/b.h": "", "tests/a.cpp": "",
                     "tests/CMakeLists.txt": "core/a.cpp\n"},
     {"src/core/b.cpp:1": "CMakeLists", "tests/a.cpp:1": "CMakeLists"}),
)


def differences(check_tree):
    """What the checks say of the samples and should not, and the other way round."""
    for line in check_tree.findings(check_tree.CHECKS, GOOD):
        yield f"the good tree: {line}"
    for check in check_tree.CHECKS:
        if check.__name__ not in {name for name, _, _ in BAD}:
            yield f"{check.__name__}: has no bad sample"
    for name, tree, wanted in BAD:
        found = check_tree.findings([getattr(check_tree, name)], tree)
        for place, word in wanted.items():
            if not any(line.startswith(place + ": ") and word in line for line in found):
                yield f"{name}: does not find {place} {word}"
        for line in found:
            if ":".join(line.split(":")[:2]) not in wanted:
                yield f"{name}: should not find {line}"


def stale_entries(check_tree):
    """An exception holds for its file alone, and is found when it is not needed any more."""
    check_tree.LOCALE_EXCEPTIONS = {("src/core/a.cpp", "atof"): "a sample"}
    if check_tree.findings([check_tree.check_locale], {"src/core/a.cpp": "atof(x);"}):
        yield "check_locale: does not grant an exception"
    if len(check_tree.findings([check_tree.check_locale], {"src/core/b.cpp": "atof(x);"})) != 2:
        yield "check_locale: does not find an exception that is not needed"


def run(check_tree):
    real_exceptions = check_tree.LOCALE_EXCEPTIONS
    check_tree.LOCALE_EXCEPTIONS = {}
    wrong = [*differences(check_tree), *stale_entries(check_tree)]
    check_tree.LOCALE_EXCEPTIONS = real_exceptions
    for line in wrong:
        print(line)
    print(f"Self-test: {len(BAD)} bad trees, {len(wrong)} faults of the checks")
    return 1 if wrong else 0
