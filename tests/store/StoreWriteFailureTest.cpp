#include <gtest/gtest.h>
#include <sys/resource.h>
#include <unistd.h>

#include <csignal>
#include <cstdio>
#include <fstream>
#include <functional>
#include <optional>

#include "FileFaults.h"
#include "store/AppState.h"
#include "store/CalorieStore.h"
#include "support/Fixtures.h"

namespace {

constexpr int kNotCalled = 100;

// A booking through the store, as the Today screen makes it; the failure handler's kind, or
// kNotCalled, is the result. Run in a child, the value travels as the exit status.
int book(const std::string& database) {
    AppState state;
    state.databasePath = database;
    CalorieStore store(state);
    std::optional<WriteFailure> failure;
    store.setWriteFailureHandler([&](WriteFailure kind) { failure = kind; });
    store.UpdateDatabase1("calorieConsumed", "777", 5);
    return failure ? static_cast<int>(*failure) : kNotCalled;
}

TEST(StoreWriteFailureTest, ABookingThatIsNotStoredSaysWhy) {
    using Path = std::filesystem::path;
    struct Case {
        const char* fault;
        WriteFailure expected;
        std::function<bool(const Path& database)> make;  // in the child; false: not here
    };
    const Case cases[] = {
        // Writes past the file-size limit fail with EFBIG, as a full disk fails with ENOSPC.
        {"file-size limit", WriteFailure::diskFull,
         [](const Path&) {
             std::signal(SIGXFSZ, SIG_IGN);
             const rlimit small{1024, 1024};
             return setrlimit(RLIMIT_FSIZE, &small) == 0;
         }},
        // A real full disk: a tmpfs just large enough for the file, filled up.
        {"full disk", WriteFailure::diskFull,
         [](const Path& database) {
             const std::string bytes = bytesOf(database);
             if (!mountSmallDisk(database.parent_path(), bytes.size() + 64 * 1024)) return false;
             std::ofstream(database, std::ios::binary) << bytes;
             fillDisk(database.parent_path());
             return true;
         }},
        // Permission bits do not stop root: the folder is mounted read-only instead, as a
        // read-only medium or a sandbox would have it. Other users get a read-only file.
        {"read-only file", WriteFailure::readOnly,
         [](const Path& database) {
             if (geteuid() == 0) return mountReadOnly(database.parent_path());
             std::filesystem::permissions(database, std::filesystem::perms::owner_read);
             return true;
         }},
        {"damaged file", WriteFailure::damaged,
         [](const Path& database) { damage(database, Damage::headerZeroed); return true; }},
        {"folder gone", WriteFailure::cannotOpen,
         [](const Path& database) { return std::filesystem::remove_all(database.parent_path()); }},
        // Another program's lock, held past the store's wait (it ends with the child).
        {"lock held", WriteFailure::locked,
         [](const Path& database) { return new HeldLock(database, "BEGIN EXCLUSIVE") != nullptr; }},
    };
    for (const Case& c : cases) {
        TempDir dir;
        const std::string database = makePlan(dir.file("data/food.db"));
        const int status =
            inChild([&] { return c.make(database) ? book(database) : kCannotMakeFault; });
        if (status == kCannotMakeFault) {
            std::printf("[  SKIPPED ] %s: this system does not allow it\n", c.fault);
            continue;
        }
        EXPECT_EQ(status, static_cast<int>(c.expected)) << c.fault;
        if (std::filesystem::exists(database) && c.expected != WriteFailure::damaged) {
            EXPECT_EQ(dayInFile(database, 5), "0 0") << c.fault;
        }
    }
}

TEST(StoreWriteFailureTest, StoredBookingsAndUpdatesOfNoRowAreNoFailure) {
    TempDir dir;
    const std::string database = makePlan(dir.file("food.db"), 3);
    EXPECT_EQ(book(database), kNotCalled);  // day 5 does not exist: nothing to store
    makePlan(database);
    EXPECT_EQ(book(database), kNotCalled);
    EXPECT_EQ(dayInFile(database, 5), "777 0");
}

}  // namespace
