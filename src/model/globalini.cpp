#include "globalini.h"

#include "privateprofile.h"
#include "programfolder.h"
#include "texthelpers.h"

#include <utility>

namespace orvelin {

GlobalIni::GlobalIni(std::string programFolder, std::string writableFolder)
    : m_programFolder(std::move(programFolder)), m_writableFolder(std::move(writableFolder)) {}

GlobalIni GlobalIni::forProgram(const std::string& programFolder) {
    return GlobalIni(programFolder, writableProgramFolder(programFolder));
}

std::string GlobalIni::readPath() const {
    return joinPath(m_programFolder, kProgramIniName);
}

std::string GlobalIni::writePath() const {
    return joinPath(m_writableFolder, kProgramIniName);
}

std::string GlobalIni::value(std::string_view key, std::string_view defaultValue) const {
    if (writePath() != readPath()) {
        const PrivateProfile copy = PrivateProfile::fromFile(writePath());
        if (copy.contains(kGlobalSection, key))
            return copy.value(kGlobalSection, key, defaultValue);
    }
    return PrivateProfile::fromFile(readPath()).value(kGlobalSection, key, defaultValue);
}

bool GlobalIni::setValue(std::string_view key, std::string_view value, TextFileError* error) {
    return PrivateProfile::writeValue(writePath(), kGlobalSection, key, value, error);
}

bool GlobalIni::noBackGround() const {
    return MakeCInt(value(kNoBackGroundKey, "0")) != 0;
}

bool GlobalIni::setNoBackGround(bool on, TextFileError* error) {
    return setValue(kNoBackGroundKey, on ? "1" : "0", error);
}

} // namespace orvelin
