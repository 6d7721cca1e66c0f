#include "qtshell.h"

#include "qtdesktoptools.h"

#include <QDesktopServices>
#include <QFileInfo>
#include <QMimeDatabase>
#include <QProcess>
#include <QStandardPaths>
#include <QStringList>
#include <QUrl>

namespace orvelin {

namespace {

// openUrl only starts xdg-open, so it reports success even when xdg-open then finds
// nothing to open the file with: no default program for its type, no $BROWSER and
// none of the browsers xdg-open falls back to.
bool someProgramOpens(const QString& file) {
    QtDesktopTools tools;
    const DesktopTools::Result query =
        tools.run("xdg-mime",
                  {"query", "default", QMimeDatabase().mimeTypeForFile(file).name().toStdString()});
    if (!query.started || !QString::fromStdString(query.output).trimmed().isEmpty() ||
        !qEnvironmentVariableIsEmpty("BROWSER"))
        return true;
    for (const char* browser :
         {"x-www-browser", "firefox", "chromium", "google-chrome", "epiphany", "konqueror"})
        if (!QStandardPaths::findExecutable(QLatin1String(browser)).isEmpty())
            return true;
    return false;
}

} // namespace

bool QtShell::openDocument(const std::string& path) {
    const QString file = QString::fromStdString(path);
    // openUrl reports success for a file that is not there on some desktops; the
    // caller's message must still appear.
    if (!QFileInfo::exists(file) || !someProgramOpens(file))
        return false;
    return QDesktopServices::openUrl(QUrl::fromLocalFile(file));
}

bool QtShell::startProgram(const std::string& program, const std::vector<std::string>& arguments) {
    QStringList args;
    for (const std::string& argument : arguments)
        args << QString::fromStdString(argument);
    return QProcess::startDetached(QString::fromStdString(program), args);
}

} // namespace orvelin
