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
    struct Case {
        const char* fault;
        WriteFailure expected;
        std::function<int(const std::string& database)> make;  // then books, in a child
    };
    const Case cases[] = {
        // Writes past the file-size limit fail with EFBIG, as a full disk fails with ENOSPC.
        {"file-size limit", WriteFailure::diskFull,
         [](const std::string& database) {
             std::signal(SIGXFSZ, SIG_IGN);
             const rlimit small{1024, 1024};
             setrlimit(RLIMIT_FSIZE, &small);
             return book(database);
         }},
        // A real full disk: a tmpfs just large enough for the file, filled up.
        {"full disk", WriteFailure::diskFull,
         [](const std::string& database) {
             const std::filesystem::path folder = std::filesystem::path(database).parent_path();
             const std::string bytes = bytesOf(database);
             if (!mountSmallDisk(folder, bytes.size() + 64 * 1024)) return kCannotMakeFault;
             std::ofstream(database, std::ios::binary) << bytes;
             fillDisk(folder);
             return book(database);
         }},
        // Permission bits do not stop root: the folder is mounted read-only instead, as a
        // read-only medium or a sandbox would have it. Other users get a read-only file.
        {"read-only file", WriteFailure::readOnly,
         [](const std::string& database) {
             const std::filesystem::path folder = std::filesystem::path(database).parent_path();
             if (geteuid() != 0) {
                 std::filesystem::permissions(database, std::filesystem::perms::owner_read);
             } else if (!mountReadOnly(folder)) {
                 return kCannotMakeFault;
             }
             return book(database);
         }},
        {"damaged file", WriteFailure::damaged,
         [](const std::string& database) {
             damage(database, Damage::headerZeroed);
             return book(database);
         }},
        {"folder gone", WriteFailure::cannotOpen,
         [](const std::string& database) {
             std::filesystem::remove_all(std::filesystem::path(database).parent_path());
             return book(database);
         }},
    };
    for (const Case& c : cases) {
        TempDir dir;
        const std::string database = makePlan(dir.file("data/food.db"));
        const int status = inChild([&] { return c.make(database); });
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

TEST(StoreWriteFailureTest, ALockHeldPastTheWaitIsAnotherProgramHoldingTheFile) {
    TempDir dir;
    const std::string database = makePlan(dir.file("food.db"));
    {
        const HeldLock lock(database, "BEGIN EXCLUSIVE");
        EXPECT_EQ(book(database), static_cast<int>(WriteFailure::locked));
    }
    EXPECT_EQ(dayInFile(database, 5), "0 0");
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
