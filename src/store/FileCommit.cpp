#include "store/FileCommit.h"

#include <fcntl.h>
#include <unistd.h>

#include <cerrno>
#include <cstdio>
#include <cstring>

#include "store/Formatted.h"

PendingFile::PendingFile(const std::filesystem::path& target) : target_(target) {
    std::string name = target.string() + ".partial-XXXXXX";
    fd_ = ::mkostemp(name.data(), O_CLOEXEC);
    if (fd_ < 0) {
        const std::filesystem::path folder = target.parent_path();
        fail(errno, folder.empty() ? std::filesystem::path(".") : folder);
        return;
    }
    path_ = name;
}

PendingFile::~PendingFile() {
    if (fd_ >= 0) ::close(fd_);
    if (!committed_ && !path_.empty()) ::unlink(path_.c_str());
}

bool PendingFile::fail(int error, const std::filesystem::path& where) {
    if (error_.empty()) error_ = fileErrorText(error, where);
    return false;
}

bool PendingFile::write(std::string_view bytes) {
    if (!ok()) return false;
    while (!bytes.empty()) {
        const ssize_t written = ::write(fd_, bytes.data(), bytes.size());
        if (written < 0 && errno == EINTR) continue;
        // A short write is where the room ran out; the next call says why.
        if (written <= 0) return fail(written < 0 ? errno : ENOSPC, target_);
        bytes.remove_prefix(static_cast<size_t>(written));
    }
    return true;
}

bool PendingFile::commit(bool replace) {
    if (!ok()) return false;
    // Space the file system only promised shows up as missing here, before the rename.
    if (::fsync(fd_) != 0) return fail(errno, target_);
    const int fd = fd_;
    fd_ = -1;
    if (::close(fd) != 0) return fail(errno, target_);
    const bool renamed =
        replace ? ::rename(path_.c_str(), target_.c_str()) == 0 : renameNoReplace(path_, target_);
    if (!renamed) return fail(errno, target_);
    committed_ = true;
    syncFolder(target_.parent_path());
    return true;
}

std::string fileErrorText(int error, const std::filesystem::path& where) {
    const char* name = where.c_str();
    switch (error) {
        case ENOSPC:
        case EDQUOT:
            return "the disk is full";
        case EFBIG:
            return "the file has grown past the size this system allows";
        case ENOENT:
            return formatted("the folder %s does not exist", name);
        case ENOTDIR:
            return formatted("a part of %s is not a folder", name);
        case EISDIR:
            return formatted("%s is a folder", name);
        case EEXIST:
            return formatted("%s already exists", name);
        case EACCES:
        case EPERM:
            return formatted("%s may not be written", name);
        case EROFS:
            return formatted("the disk holding %s is read-only", name);
        case EIO:
            return "the disk could not be written";
        default:
            return formatted("%s could not be written: %s", name, std::strerror(error));
    }
}

bool renameNoReplace(const std::filesystem::path& from, const std::filesystem::path& to) {
    if (::renameat2(AT_FDCWD, from.c_str(), AT_FDCWD, to.c_str(), RENAME_NOREPLACE) == 0)
        return true;
    // File systems without the flag: a hard link fails just as well when the name is taken.
    if (errno != EINVAL && errno != ENOSYS) return false;
    if (::link(from.c_str(), to.c_str()) != 0) return false;
    ::unlink(from.c_str());
    return true;
}

void syncFolder(const std::filesystem::path& folder) {
    const int fd =
        ::open(folder.empty() ? "." : folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (fd < 0) return;
    ::fsync(fd);
    ::close(fd);
}
