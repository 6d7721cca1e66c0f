#include "textfile.h"

#include "textcatalogue.h"

#include <array>
#include <cerrno>
#include <cstdint>
#include <fcntl.h>
#include <filesystem>
#include <random>
#include <sys/file.h>
#include <sys/stat.h>
#include <system_error>
#include <unistd.h>

namespace orvelin {

namespace fs = std::filesystem;

namespace {

void report(TextFileError* error, std::string description, int code = 0) {
    if (error) {
        error->description = std::move(description);
        error->code = code;
    }
}

// Length of the UTF-8 sequence starting at `i`, or 0 when the bytes there are not
// well-formed (overlong forms, surrogates and values above U+10FFFF included).
std::size_t utf8SequenceLength(std::string_view s, std::size_t i) {
    const auto byte = [&](std::size_t k) { return static_cast<unsigned char>(s[k]); };
    const unsigned char lead = byte(i);
    if (lead < 0x80)
        return 1;
    std::size_t length = 0;
    unsigned char low = 0x80;
    unsigned char high = 0xBF;
    if (lead >= 0xC2 && lead <= 0xDF) {
        length = 2;
    } else if (lead >= 0xE0 && lead <= 0xEF) {
        length = 3;
        if (lead == 0xE0)
            low = 0xA0;
        else if (lead == 0xED)
            high = 0x9F;
    } else if (lead >= 0xF0 && lead <= 0xF4) {
        length = 4;
        if (lead == 0xF0)
            low = 0x90;
        else if (lead == 0xF4)
            high = 0x8F;
    } else {
        return 0;
    }
    if (i + length > s.size())
        return 0;
    if (byte(i + 1) < low || byte(i + 1) > high)
        return 0;
    for (std::size_t k = 2; k < length; ++k)
        if (byte(i + k) < 0x80 || byte(i + k) > 0xBF)
            return 0;
    return length;
}

bool isValidUtf8(std::string_view s) {
    // Most project text is ASCII: a block of it is passed over at once, by a loop without
    // branches that the compiler turns into a few vector instructions.
    constexpr std::size_t kBlock = 64;
    for (std::size_t i = 0; i < s.size();) {
        if (i + kBlock <= s.size()) {
            unsigned char any = 0;
            for (std::size_t k = 0; k < kBlock; ++k)
                any |= static_cast<unsigned char>(s[i + k]);
            if (any < 0x80) {
                i += kBlock;
                continue;
            }
        }
        const std::size_t n = utf8SequenceLength(s, i);
        if (n == 0)
            return false;
        i += n;
    }
    return true;
}

// Code points of the bytes 0x80 to 0x9F in Windows-1252. The five bytes the code page
// leaves undefined map to the control characters of the same value, as Windows does.
constexpr std::array<std::uint16_t, 32> kCp1252High = {
    0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0x008D, 0x017D, 0x008F, 0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178};

void appendUtf8(std::string& out, std::uint32_t cp) {
    if (cp < 0x80) {
        out += static_cast<char>(cp);
    } else if (cp < 0x800) {
        out += static_cast<char>(0xC0 | (cp >> 6));
        out += static_cast<char>(0x80 | (cp & 0x3F));
    } else {
        out += static_cast<char>(0xE0 | (cp >> 12));
        out += static_cast<char>(0x80 | ((cp >> 6) & 0x3F));
        out += static_cast<char>(0x80 | (cp & 0x3F));
    }
}

bool hasWriteBit(fs::perms p) {
    return (p & (fs::perms::owner_write | fs::perms::group_write | fs::perms::others_write)) !=
           fs::perms::none;
}

std::string errnoText(int code) {
    switch (code) {
    case ENOENT:
    case ENOTDIR:
        return texts()[Msg::CausePathNotFound];
    case EACCES:
    case EPERM:
    case EROFS:
        return texts()[Msg::CausePermissionDenied];
    case ENOSPC:
    case EDQUOT:
        return texts()[Msg::CauseDiskFull];
    default:
        return texts()[Msg::CauseFileAccess];
    }
}

// Writes all of `bytes` to `fd`, retrying short writes and interruptions.
bool writeAll(int fd, std::string_view bytes) {
    std::size_t done = 0;
    while (done < bytes.size()) {
        const ssize_t n = ::write(fd, bytes.data() + done, bytes.size() - done);
        if (n < 0) {
            if (errno == EINTR)
                continue;
            return false;
        }
        done += static_cast<std::size_t>(n);
    }
    return true;
}

// Reads `fd` to its end into `bytes`: one read of the size the file gives, then on
// piece by piece for whatever that did not tell (a file that grew, or one of the
// kernel's files that claim to be empty). False on a read error.
bool readAll(int fd, std::string& bytes) {
    struct stat info {};
    bytes.resize(
        ::fstat(fd, &info) == 0 && info.st_size > 0 ? static_cast<std::size_t>(info.st_size) : 0);
    std::size_t done = 0;
    char more[4096];
    for (;;) {
        const bool room = done < bytes.size();
        const ssize_t n = room ? ::read(fd, bytes.data() + done, bytes.size() - done)
                               : ::read(fd, more, sizeof more);
        if (n < 0) {
            if (errno == EINTR)
                continue;
            return false;
        }
        if (n == 0)
            break;
        if (!room)
            bytes.append(more, static_cast<std::size_t>(n));
        done += static_cast<std::size_t>(n);
    }
    bytes.resize(done);
    return true;
}

constexpr std::string_view kTemporaryMark = ".orvelin-save-";
constexpr std::size_t kTemporaryTail = 6;
constexpr std::string_view kTemporaryLetters =
    "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789";

// ".<name>.orvelin-save-": what every temporary file of `target` starts with.
std::string temporaryPrefix(const fs::path& target) {
    return "." + target.filename().string() + std::string(kTemporaryMark);
}

// Creates a new, empty temporary file beside `target`, locked for as long as it is open;
// -1 when the folder refuses it.
int createTemporary(const fs::path& target, fs::path& temporary) {
    std::random_device entropy;
    for (int attempt = 0; attempt < 16; ++attempt) {
        std::string name = temporaryPrefix(target);
        for (std::size_t i = 0; i < kTemporaryTail; ++i)
            name += kTemporaryLetters[entropy() % kTemporaryLetters.size()];
        temporary = target;
        temporary.replace_filename(name);
        const int fd = ::open(temporary.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0666);
        if (fd < 0 && errno != EEXIST)
            return fd;
        if (fd < 0)
            continue;
        // Another save's clean-up may have taken the file before the lock was ours.
        struct stat opened {};
        struct stat named {};
        if (::flock(fd, LOCK_EX) == 0 && ::fstat(fd, &opened) == 0 &&
            ::stat(temporary.c_str(), &named) == 0 && opened.st_ino == named.st_ino &&
            opened.st_dev == named.st_dev)
            return fd;
        ::close(fd);
    }
    errno = EEXIST;
    return -1;
}

// Removes the temporary files of `target` that killed saves left behind. A file that
// another save is still writing is locked and stays; so does every other file.
void removeStaleTemporaries(const fs::path& target) {
    const std::string prefix = temporaryPrefix(target);
    const fs::path folder = target.has_parent_path() ? target.parent_path() : fs::path(".");
    std::error_code ec;
    for (const fs::directory_entry& entry : fs::directory_iterator(folder, ec)) {
        const std::string name = entry.path().filename().string();
        if (name.size() != prefix.size() + kTemporaryTail ||
            name.compare(0, prefix.size(), prefix) != 0 ||
            name.find_first_not_of(kTemporaryLetters, prefix.size()) != std::string::npos)
            continue;
        // A killed save may have given its file the target's write-only mode already.
        constexpr int flags = O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC;
        int fd = ::open(entry.path().c_str(), O_RDONLY | flags);
        if (fd < 0 && errno == EACCES)
            fd = ::open(entry.path().c_str(), O_WRONLY | flags);
        if (fd < 0)
            continue;
        struct stat info {};
        if (::fstat(fd, &info) == 0 && S_ISREG(info.st_mode) && ::flock(fd, LOCK_EX | LOCK_NB) == 0)
            ::unlink(entry.path().c_str());
        ::close(fd);
    }
}

} // namespace

std::string toUtf8(std::string_view bytes) {
    if (isValidUtf8(bytes))
        return std::string(bytes);
    std::string out;
    out.reserve(bytes.size() + bytes.size() / 4);
    for (const char c : bytes) {
        const auto b = static_cast<unsigned char>(c);
        if (b < 0x80)
            out += c;
        else if (b < 0xA0)
            appendUtf8(out, kCp1252High[b - 0x80u]);
        else
            appendUtf8(out, b); // the rest of the code page equals Latin-1
    }
    return out;
}

std::optional<std::string> readTextFile(const std::string& path, TextFileError* error) {
    std::error_code ec;
    const fs::file_status status = fs::status(path, ec);
    if (path.empty() || !fs::exists(status)) {
        report(error, texts()[Msg::CauseFileNotFound]);
        return std::nullopt;
    }
    // A folder, a pipe or a device is no text file (and a pipe could block forever).
    if (!fs::is_regular_file(status)) {
        report(error, texts()[Msg::CauseFileAccess]);
        return std::nullopt;
    }
    const int fd = ::open(path.c_str(), O_RDONLY | O_CLOEXEC);
    if (fd < 0) {
        report(error, texts()[Msg::CausePermissionDenied]);
        return std::nullopt;
    }
    std::string bytes;
    const bool complete = readAll(fd, bytes);
    ::close(fd);
    if (!complete) {
        report(error, "Device I/O error");
        return std::nullopt;
    }
    if (std::string_view(bytes).substr(0, 3) == "\xEF\xBB\xBF")
        bytes.erase(0, 3);
    if (isValidUtf8(bytes))
        return bytes;
    return toUtf8(bytes);
}

std::vector<std::string_view> splitLines(std::string_view text, bool* lastTerminated,
                                         std::size_t maxLines) {
    std::vector<std::string_view> lines;
    std::size_t start = 0;
    bool terminated = true;
    while (start < text.size() && lines.size() < maxLines) {
        const std::size_t lf = text.find('\n', start);
        if (lf == std::string_view::npos) {
            lines.push_back(text.substr(start));
            terminated = false;
            break;
        }
        std::size_t end = lf;
        if (end > start && text[end - 1] == '\r')
            --end;
        lines.push_back(text.substr(start, end - start));
        start = lf + 1;
    }
    if (lastTerminated)
        *lastTerminated = terminated;
    return lines;
}

bool writeFileAtomically(const std::string& path, std::string_view bytes, TextFileError* error) {
    if (path.empty()) {
        report(error, texts()[Msg::CauseBadFileName], ENOENT);
        return false;
    }
    std::error_code ec;
    fs::path target(path);
    // Replace what a link points to, not the link itself.
    if (fs::is_symlink(fs::symlink_status(target, ec))) {
        const fs::path resolved = fs::weakly_canonical(target, ec);
        if (!ec)
            target = resolved;
    }
    const fs::file_status existing = fs::status(target, ec);
    const bool exists = fs::exists(existing);
    if (exists && !fs::is_regular_file(existing)) {
        report(error, texts()[Msg::CauseFileAccess], fs::is_directory(existing) ? EISDIR : EINVAL);
        return false;
    }
    // The mode bits decide, not access(): a privileged user would be allowed to
    // overwrite a file its owner marked read-only, and the user asked for it not to be.
    if (exists && !hasWriteBit(existing.permissions())) {
        report(error, texts()[Msg::CausePermissionDenied], EACCES);
        return false;
    }
    const fs::path folder = target.has_parent_path() ? target.parent_path() : fs::path(".");
    const fs::file_status folderStatus = fs::status(folder, ec);
    if (!fs::is_directory(folderStatus)) {
        report(error, texts()[Msg::CausePathNotFound], fs::exists(folderStatus) ? ENOTDIR : ENOENT);
        return false;
    }
    if (!hasWriteBit(folderStatus.permissions())) {
        report(error, texts()[Msg::CausePermissionDenied], EACCES);
        return false;
    }

    fs::path temporary;
    const int fd = createTemporary(target, temporary);
    if (fd < 0) {
        const int failure = errno;
        report(error, errnoText(failure), failure);
        return false;
    }
    // The text is on the disk before the rename, so a crash leaves the old file or the
    // new one, never an empty one.
    bool ok = writeAll(fd, bytes) && ::fsync(fd) == 0;
    int failure = ok ? 0 : errno;
    // The new file gets the old one's permissions, so replacing it changes only its text.
    if (ok && exists)
        ::fchmod(fd, static_cast<mode_t>(existing.permissions() & fs::perms::mask));
    // Renamed while still open, so the lock keeps other saves' clean-up away from it.
    if (ok && ::rename(temporary.c_str(), target.c_str()) != 0) {
        ok = false;
        failure = errno;
    }
    ::close(fd);
    if (!ok) {
        ::unlink(temporary.c_str());
        report(error, errnoText(failure), failure);
        return false;
    }
    removeStaleTemporaries(target);
    return true;
}

std::string TextFileError::systemText() const {
    return code != 0 ? std::generic_category().message(code) : std::string();
}

std::string withSystemCause(const std::string& message, const TextFileError& error) {
    const std::string cause = error.systemText();
    return cause.empty() ? message : message + "\r\n" + cause;
}

} // namespace orvelin
