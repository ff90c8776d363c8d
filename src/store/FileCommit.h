#pragma once
// Files that appear whole or not at all: written under a name of their own beside the target,
// flushed, renamed into place, and the folder flushed so that the rename outlives a power cut.

#include <filesystem>
#include <string>

// A new, empty file named "<target>.partial-XXXXXX", open for writing; removed again unless it
// was committed. Plain POSIX calls, so that errno can say why a step failed.
class PendingFile {
public:
    explicit PendingFile(const std::filesystem::path& target);
    ~PendingFile();
    PendingFile(const PendingFile&) = delete;
    PendingFile& operator=(const PendingFile&) = delete;

    // Empty while every step so far worked; otherwise why not, for the person.
    const std::string& error() const { return error_; }
    bool ok() const { return error_.empty(); }
    const std::filesystem::path& path() const { return path_; }

    // Appends the bytes; false with error() set when they did not all go in.
    bool write(std::string_view bytes);
    // Flushes the contents (also what another writer, such as SQLite, put there) and renames
    // the file over the target, or, without replace, only to a name nobody has taken.
    bool commit(bool replace = true);

private:
    bool fail(int error, const std::filesystem::path& where);

    std::filesystem::path target_;
    std::filesystem::path path_;
    std::string error_;
    int fd_ = -1;
    bool committed_ = false;
};

// The cause of a failed file operation in words: "the disk is full", "the folder /x does not
// exist", ... `where` is the file or folder the operation was about.
std::string fileErrorText(int error, const std::filesystem::path& where);

// Renames only when to is free, also when it was taken after it was looked for.
bool renameNoReplace(const std::filesystem::path& from, const std::filesystem::path& to);

// Makes renames and removals in folder last through a power cut.
void syncFolder(const std::filesystem::path& folder);
