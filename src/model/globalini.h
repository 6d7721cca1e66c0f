#pragma once

#include "textfile.h"

#include <string>
#include <string_view>

namespace orvelin {

/**
 * The [Global] section of Orvel.ini, the design surface's own store beside the
 * per-user settings (it holds chkNoBackGround). The file in the program folder is
 * read; writes go to the writable program folder, which is the program folder itself
 * when it is writable and else the per-user copy, so when the two differ the copy's
 * values come first. Other sections of the file (the JSCaller block) are never touched.
 */
class GlobalIni {
public:
    GlobalIni(std::string programFolder, std::string writableFolder);

    /// `programFolder` and its writableProgramFolder().
    static GlobalIni forProgram(const std::string& programFolder);

    std::string value(std::string_view key, std::string_view defaultValue) const;
    /// Replaces the file safely; false (and `error`) when it could not be written.
    bool setValue(std::string_view key, std::string_view value, TextFileError* error = nullptr);

    /// chkNoBackGround: any non-zero number counts as checked; missing is unchecked.
    bool noBackGround() const;
    bool setNoBackGround(bool on, TextFileError* error = nullptr);

    std::string readPath() const;
    std::string writePath() const;

private:
    std::string m_programFolder;
    std::string m_writableFolder;
};

/// The file name, one file however the old texts spell it.
inline constexpr const char* kProgramIniName = "Orvel.ini";
inline constexpr const char* kGlobalSection = "Global";
inline constexpr const char* kNoBackGroundKey = "chkNoBackGround";

} // namespace orvelin
