#include "FileFaults.h"

#include <fcntl.h>
#include <sched.h>
#include <sys/mount.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <fstream>
#include <iterator>

#include "support/Fixtures.h"

std::string makePlan(const std::filesystem::path& path, int days) {
    // Made once per length: the set-up's day inserts, one transaction each, take a while.
    static const TempDir made;
    const std::filesystem::path plan = made.path() / ("plan-" + std::to_string(days) + ".db");
    if (!std::filesystem::exists(plan)) {
        std::filesystem::copy_file(FOOD_DB_PATH, plan);
        std::filesystem::permissions(plan, std::filesystem::perms::owner_write,
                                     std::filesystem::perm_options::add);
        writePlan(plan.string(), kPlanStart, "1850", days);
    }
    std::filesystem::create_directories(path.parent_path());
    std::filesystem::copy_file(plan, path, std::filesystem::copy_options::overwrite_existing);
    return path.string();
}

// Bytes that are no part of a database, as a wrong file or a bad sector holds them.
const std::string kJunk(8192, '\x5a');

void damage(const std::filesystem::path& path, Damage damage) {
    static const std::map<Damage, const char*> kBySql = {
        {Damage::tableDropped, "DROP TABLE dailyData"},
        {Damage::columnDropped, "ALTER TABLE food DROP COLUMN unit"},
        {Damage::noProfile, "DELETE FROM profileData WHERE id = 2"},
        {Damage::noDays, "DELETE FROM dailyData WHERE id >= 0"},
    };
    if (kBySql.contains(damage)) return execSql(path.string(), kBySql.at(damage));
    switch (damage) {
        case Damage::deleted:
            std::filesystem::remove(path);
            break;
        case Damage::emptied:
            std::filesystem::resize_file(path, 0);
            break;
        case Damage::junk:
            std::ofstream(path, std::ios::binary) << kJunk;
            break;
        case Damage::cutShort:
            std::filesystem::resize_file(path, std::filesystem::file_size(path) / 2);
            break;
        case Damage::pageScrambled:
            std::fstream(path, std::ios::in | std::ios::out | std::ios::binary).seekp(100 * 4096)
                << kJunk.substr(0, 4096);
            break;
        case Damage::folderInPlace:
            std::filesystem::remove(path);
            std::filesystem::create_directory(path);
            break;
        default:
            break;
    }
}

HeldLock holdLock(const std::filesystem::path& path, const char* begin) {
    sqlite3* db = nullptr;
    sqlite3_open(path.c_str(), &db);
    if (sqlite3_exec(db, begin, nullptr, nullptr, nullptr) != SQLITE_OK) std::abort();
    return HeldLock(db, [](sqlite3* held) {
        sqlite3_exec(held, "ROLLBACK", nullptr, nullptr, nullptr);
        sqlite3_close(held);
    });
}

std::map<std::string, std::string> snapshot(const std::filesystem::path& folder) {
    std::map<std::string, std::string> files;
    for (const auto& entry : std::filesystem::recursive_directory_iterator(folder)) {
        const std::string name = entry.path().lexically_relative(folder).string();
        files[name] = entry.is_directory() ? "<folder>" : bytesOf(entry.path());
    }
    return files;
}

int inChild(const std::function<int()>& body) {
    const pid_t child = fork();
    if (child < 0) return -1;
    if (child == 0) {
        const rlimit none{0, 0};
        setrlimit(RLIMIT_CORE, &none);
        _exit(body());
    }
    int status = 0;
    waitpid(child, &status, 0);
    return WIFEXITED(status) ? WEXITSTATUS(status) : 128 + WTERMSIG(status);
}

// Mounts made after this vanish with the child and are never seen by the rest of the system.
static bool privateMounts() {
    return unshare(CLONE_NEWNS) == 0 &&
           mount(nullptr, "/", nullptr, MS_REC | MS_PRIVATE, nullptr) == 0;
}

bool mountSmallDisk(const std::filesystem::path& folder, size_t bytes) {
    const std::string options = "size=" + std::to_string(bytes);
    return privateMounts() && mount("tmpfs", folder.c_str(), "tmpfs", 0, options.c_str()) == 0;
}

bool mountReadOnly(const std::filesystem::path& folder) {
    return privateMounts() &&
           mount(folder.c_str(), folder.c_str(), nullptr, MS_BIND, nullptr) == 0 &&
           mount(nullptr, folder.c_str(), nullptr, MS_REMOUNT | MS_BIND | MS_RDONLY, nullptr) == 0;
}

void fillDisk(const std::filesystem::path& folder) {
    const int fd = open((folder / "filler").c_str(), O_WRONLY | O_CREAT | O_CLOEXEC, 0600);
    const std::string block(65536, 'x');
    for (const size_t size : {block.size(), size_t{1}})
        while (write(fd, block.data(), size) == static_cast<ssize_t>(size)) {
        }
    close(fd);
}

std::string queryJoined(const std::filesystem::path& path, const char* sql) {
    std::string joined;
    const char* separator = "";
    for (const std::string& value : queryColumn(path.string(), sql)) {
        joined += separator + value;
        separator = "|";
    }
    return joined;
}
