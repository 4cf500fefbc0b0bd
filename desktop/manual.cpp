#include "desktop/manual.h"

#include "desktop/text_bridge.h"
#include "platform/file_path.h"
#include "platform/program_files.h"
#include "platform/shell.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QUrl>

namespace kestrum::desktop {

QString Chapter_Of(Screen_Kind kind) {
    switch (kind) {
    case Screen_Kind::Engine:
        return QStringLiteral("main-the-engine");
    case Screen_Kind::Sheet:
        return QStringLiteral("a-flow-test");
    case Screen_Kind::Compare:
        return QStringLiteral("comparing-two-tests");
    case Screen_Kind::Graph:
        return QStringLiteral("the-graph");
    case Screen_Kind::Report:
        return QStringLiteral("text-report");
    }
    return {};
}

namespace {

/// The page of an installation or of a build, or the text that it is made of.
QString Path_Of_Manual() {
    const std::string page = Text_Of(Program_File(Program_Part::Documents, "manual.html"));
    if (!page.empty()) {
        return To_Qt(page);
    }
    const QDir program(QCoreApplication::applicationDirPath());
    for (const char* const place : {"../../docs/manual.md", "docs/manual.md"}) {
        QString path = QDir::cleanPath(program.filePath(QLatin1String(place)));
        if (QFileInfo::exists(path)) {
            return path;
        }
    }
    return {};
}

} // namespace

QString Page_Of_Chapter(const QString& manual, Screen_Kind kind) {
    const QFileInfo whole(manual);
    return whole.dir().filePath(whole.completeBaseName() + QLatin1Char('-') + Chapter_Of(kind) +
                                QLatin1Char('.') + whole.suffix());
}

QString Open_Manual(Session& session, Screen_Kind kind) {
    const QString path = Path_Of_Manual();
    if (path.isEmpty()) {
        return QStringLiteral("The manual is not beside the program.");
    }
    // What opens files mostly leaves the chapter of an address behind; a page of its own leads
    // there.
    const QString chapter = Page_Of_Chapter(path, kind);
    const QUrl address = QUrl::fromLocalFile(QFileInfo::exists(chapter) ? chapter : path);
    const bool is_open = session.shell != nullptr &&
                         session.shell->Open(From_Qt(address.toString(QUrl::FullyEncoded)));
    return (is_open ? QStringLiteral("The manual opens: ")
                    : QStringLiteral("Nothing on this system opens the manual: ")) +
           path;
}

} // namespace kestrum::desktop
