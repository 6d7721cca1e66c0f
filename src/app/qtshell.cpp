#include "qtshell.h"

#include <QDesktopServices>
#include <QFileInfo>
#include <QProcess>
#include <QStringList>
#include <QUrl>

namespace orvelin {

bool QtShell::OpenDocument(const std::string& path) {
    const QString file = QString::fromStdString(path);
    // openUrl reports success for a file that is not there on some desktops; the
    // caller's message must still appear.
    if (!QFileInfo::exists(file))
        return false;
    return QDesktopServices::openUrl(QUrl::fromLocalFile(file));
}

bool QtShell::StartProgram(const std::string& program, const std::vector<std::string>& arguments) {
    QStringList args;
    for (const std::string& argument : arguments)
        args << QString::fromStdString(argument);
    return QProcess::startDetached(QString::fromStdString(program), args);
}

} // namespace orvelin
