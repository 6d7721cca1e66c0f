#include "qtdesktoptools.h"

#include <QProcess>
#include <QStringList>

namespace orvelin {

DesktopTools::Result QtDesktopTools::run(const std::string& program,
                                         const std::vector<std::string>& arguments) {
    QStringList args;
    for (const std::string& argument : arguments)
        args << QString::fromStdString(argument);
    QProcess process;
    process.start(QString::fromStdString(program), args);
    Result result;
    if (!process.waitForStarted())
        return result;
    result.started = true;
    // The tools finish in a blink; a hung one must not freeze the designer for good.
    if (!process.waitForFinished(30000)) {
        process.kill();
        process.waitForFinished();
        result.status = -1;
        result.errors = "it did not finish within 30 seconds";
        return result;
    }
    result.status = process.exitStatus() == QProcess::NormalExit ? process.exitCode() : -1;
    result.output = process.readAllStandardOutput().toStdString();
    result.errors = process.readAllStandardError().toStdString();
    return result;
}

} // namespace orvelin
