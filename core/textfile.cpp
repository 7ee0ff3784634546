// SPDX-FileCopyrightText: 2026 The tonefret developers
// SPDX-License-Identifier: MIT
#include "core/textfile.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <cstdio>
#include <memory>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace core {
namespace {

namespace fs = std::filesystem;

constexpr std::size_t mostbytes = std::size_t{1} << 30U;
constexpr mode_t newfile = 0666; ///< less what the user's mask takes away

std::error_code lastfailure()
{
    return {errno, std::generic_category()};
}

std::error_code because(std::errc reason)
{
    return std::make_error_code(reason);
}

/// An open file; closed at the end of its life.
class Descriptor {
public:
    Descriptor(const fs::path& file, int flags) : number(::open(file.c_str(), flags | O_CLOEXEC, newfile)) {}
    Descriptor(const Descriptor&) = delete;
    Descriptor& operator=(const Descriptor&) = delete;
    ~Descriptor()
    {
        if (isopen())
            ::close(number);
    }

    bool isopen() const { return number != none; }
    int get() const { return number; }

    /// Closes now: a full disk may be told of no earlier.
    std::error_code close()
    {
        const int closed = ::close(number);
        number = none;
        return closed == 0 ? std::error_code() : lastfailure();
    }

private:
    static constexpr int none = -1;
    int number;
};

std::error_code refusal(mode_t mode)
{
    if (S_ISREG(mode))
        return {};
    return because(S_ISDIR(mode) ? std::errc::is_a_directory : std::errc::operation_not_supported);
}

std::error_code readall(int file, std::string& bytes)
{
    std::array<char, 65536> piece;
    for (;;) {
        const ssize_t count = ::read(file, piece.data(), piece.size());
        if (count < 0 && errno == EINTR)
            continue;
        if (count <= 0)
            return count == 0 ? std::error_code() : lastfailure();
        if (bytes.size() + static_cast<std::size_t>(count) > mostbytes)
            return because(std::errc::file_too_large);
        bytes.append(piece.data(), static_cast<std::size_t>(count));
    }
}

std::error_code writeall(int file, std::string_view bytes)
{
    while (!bytes.empty()) {
        const ssize_t count = ::write(file, bytes.data(), bytes.size());
        if (count < 0 && errno == EINTR)
            continue;
        if (count < 0)
            return lastfailure();
        bytes.remove_prefix(static_cast<std::size_t>(count));
    }
    return ::fsync(file) == 0 ? std::error_code() : lastfailure();
}

/// A file under a name that was free, gone again unless it was kept.
class NewFile {
public:
    explicit NewFile(fs::path at) : path(std::move(at)), file(path, O_WRONLY | O_CREAT | O_EXCL)
    {
        if (file.isopen())
            temporary = true;
        else
            failed = lastfailure();
    }
    NewFile(const NewFile&) = delete;
    NewFile& operator=(const NewFile&) = delete;
    ~NewFile()
    {
        if (temporary)
            ::unlink(path.c_str());
    }

    std::error_code failure() const { return failed; }

    std::error_code fill(std::string_view bytes)
    {
        if (const auto failure = writeall(file.get(), bytes))
            return failure;
        return file.close();
    }

    /// Gives the new file the permissions of an old one, and its owner where that is allowed.
    std::error_code dressas(const struct stat& old)
    {
        [[maybe_unused]] const int owned = ::fchown(file.get(), old.st_uid, old.st_gid);
        return ::fchmod(file.get(), old.st_mode & 07777U) == 0 ? std::error_code() : lastfailure();
    }

    std::error_code moveto(const fs::path& name)
    {
        if (std::rename(path.c_str(), name.c_str()) != 0)
            return lastfailure();
        keep();
        return {};
    }

    void keep() { temporary = false; }

private:
    fs::path path;
    Descriptor file;
    std::error_code failed;
    bool temporary = false;
};

/// Where a link leads to, as far as the system can follow it, also where nothing stands there yet.
fs::path targetof(fs::path file)
{
    std::error_code none;
    while (fs::is_symlink(file, none) && fs::status(file, none).type() != fs::file_type::none)
        file = file.parent_path() / fs::read_symlink(file, none);
    return file;
}

/// The folder's entry is written to the disk too, where the system can do that.
void settle(const fs::path& folder)
{
    const Descriptor opened(folder.empty() ? fs::path(".") : folder, O_RDONLY | O_DIRECTORY);
    if (opened.isopen())
        ::fsync(opened.get());
}

/// A new file beside an old one. What a process that was killed has left behind keeps its name.
std::unique_ptr<NewFile> makebeside(const fs::path& file)
{
    constexpr int mostnames = 10'000;
    for (int number = 1;; ++number) {
        fs::path name = file;
        auto fresh = std::make_unique<NewFile>(name += ".new-" + std::to_string(number));
        if (fresh->failure() != std::errc::file_exists || number == mostnames)
            return fresh;
    }
}

} // namespace

FileText readtext(const fs::path& file)
{
    FileText result;
    const Descriptor opened(file, O_RDONLY | O_NONBLOCK);
    struct stat status {};
    if (!opened.isopen() || ::fstat(opened.get(), &status) != 0) {
        result.failure = lastfailure();
        return result;
    }
    result.failure = refusal(status.st_mode);
    if (!result.failure) {
        result.bytes.reserve(std::min(mostbytes, static_cast<std::size_t>(status.st_size)));
        result.failure = readall(opened.get(), result.bytes);
    }
    if (result.failure)
        result.bytes.clear();
    return result;
}

std::error_code replacetext(const fs::path& file, std::string_view bytes)
{
    struct stat old {};
    if (::stat(file.c_str(), &old) != 0 && errno != ENOENT)
        return lastfailure();
    const fs::path target = targetof(file);
    const bool exists = ::lstat(target.c_str(), &old) == 0;
    if (!exists && errno != ENOENT)
        return lastfailure();
    if (exists) {
        if (const auto refused = refusal(old.st_mode))
            return refused;
        if (::access(target.c_str(), W_OK) != 0)
            return lastfailure();
    }
    const auto fresh = makebeside(target);
    auto failure = fresh->failure();
    if (!failure && exists)
        failure = fresh->dressas(old);
    if (!failure)
        failure = fresh->fill(bytes);
    if (!failure)
        failure = fresh->moveto(target);
    if (!failure)
        settle(target.parent_path());
    return failure;
}

std::error_code createtext(const fs::path& file, std::string_view bytes)
{
    NewFile fresh(file);
    auto failure = fresh.failure();
    if (!failure)
        failure = fresh.fill(bytes);
    if (!failure) {
        fresh.keep();
        settle(file.parent_path());
    }
    return failure;
}

} // namespace core
