#pragma once
// The calorie store: puts food.db in place, reads its three tables into AppState and writes
// single values back. Every operation opens the file, runs one statement and closes it again;
// with one row written per user action there is nothing to gain from a kept connection.
// Reads report no failure: failures go to the developer log only. A write that does not reach
// the file is also told to the write-failure handler, so that the person learns it was not saved.

#include <cstdint>
#include <filesystem>
#include <functional>
#include <string>

#include "store/WriteFailure.h"

struct AppState;

class CalorieStore {
public:
    explicit CalorieStore(AppState& state) : state_(state) {}

    // Called first by every daily update; the app shows the status overlay here.
    void setBeforeDailyUpdate(std::function<void()> hook) { beforeDailyUpdate_ = std::move(hook); }
    // Called on the writing thread when opening, preparing or running a write fails (after the
    // lock wait). An update that matches no row is no failure.
    void setWriteFailureHandler(std::function<void(WriteFailure)> handler) {
        writeFailed_ = std::move(handler);
    }

    // Copies shippedFolder/databaseName to databasePath unless a file is already there.
    void checkAndCreateDatabase(const std::filesystem::path& shippedFolder);

    void UpdateDatabase(const std::string& key, const std::string& value);
    void insertDatabase(const std::string& date, int32_t id);
    void UpdateDatabase1(const std::string& key, const std::string& value, int32_t id);

    void readDataFromDatabase();
    void readDataFromDatabaseFoodTable();
    void readDataFromDatabaseMainTable();

private:
    void write(const std::string& sql, const char* doneText);
    void read(const char* sql, const std::function<void(const std::string* columns)>& onRow,
              int columnCount);

    AppState& state_;
    std::function<void()> beforeDailyUpdate_;
    std::function<void(WriteFailure)> writeFailed_;
};
