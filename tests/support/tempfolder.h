#pragma once

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <stdexcept>
#include <string>

namespace orvelin::testing {

/// A file's bytes as they are ("" when it cannot be read).
inline std::string ReadBytes(const std::filesystem::path& path) {
    std::ifstream in(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>()};
}

inline void WriteBytes(const std::filesystem::path& path, const std::string& bytes) {
    std::ofstream(path, std::ios::binary | std::ios::trunc) << bytes;
}

/// A fresh folder of its own under the system's temporary folder, removed with all it
/// holds when the object goes, read-only entries too (tests make such on purpose).
class TempFolder {
public:
    TempFolder() {
        std::string pattern = (std::filesystem::temp_directory_path() / "orvelin-XXXXXX").string();
        if (::mkdtemp(pattern.data()) == nullptr)
            throw std::runtime_error("no temporary folder");
        m_dir = pattern;
    }
    ~TempFolder() {
        namespace fs = std::filesystem;
        std::error_code ec;
        fs::permissions(m_dir, fs::perms::owner_all, fs::perm_options::add, ec);
        for (const auto& entry : fs::recursive_directory_iterator(m_dir, ec))
            fs::permissions(entry.path(), fs::perms::owner_all, fs::perm_options::add, ec);
        fs::remove_all(m_dir, ec);
    }
    TempFolder(const TempFolder&) = delete;
    TempFolder& operator=(const TempFolder&) = delete;

    const std::filesystem::path& dir() const { return m_dir; }
    std::string path(const std::string& name) const { return (m_dir / name).string(); }
    std::string read(const std::string& name) const { return ReadBytes(m_dir / name); }
    /// Writes `bytes` as `name` and gives the file's path.
    std::string write(const std::string& name, const std::string& bytes) const {
        WriteBytes(m_dir / name, bytes);
        return path(name);
    }
    /// How many entries the folder holds (a safe write leaves no temporary file behind).
    long entries() const {
        return std::distance(std::filesystem::directory_iterator(m_dir),
                             std::filesystem::directory_iterator());
    }

private:
    std::filesystem::path m_dir;
};

} // namespace orvelin::testing
