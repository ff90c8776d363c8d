#pragma once
// What a person can do with their plan's data, the same from the command line, the More screen
// and the message shown when the program cannot go on: export it, back it up, put a backup back,
// finish a set-up that stopped halfway, or set the plan aside and start a new one. Each answers
// with a sentence for the person. Nothing is deleted: a file replaced is kept in backups/.

#include <filesystem>
#include <string>

#include "store/Dates.h"

class UserDefaults;

struct DataOutcome {
    bool ok = false;
    std::string text;  // what happened, or why not, as a sentence
};

class YourData {
public:
    // The user defaults hold "firstTime", which a backup carries; folder holds food.db.
    YourData(UserDefaults& defaults, std::filesystem::path folder);

    std::filesystem::path database() const { return folder_ / "food.db"; }
    // The name an export is offered under: calorie-counter-YYYY-MM-DD.csv.
    static std::string suggestedCsvName(Instant today);
    // And a backup under calorie-counter-YYYY-MM-DD.db.
    static std::string suggestedBackupName(Instant today);

    DataOutcome exportCsv(const std::filesystem::path& file) const;
    DataOutcome backUp(const std::filesystem::path& file) const;
    // Refused with nothing changed unless the file holds a whole plan.
    DataOutcome restore(const std::filesystem::path& file, Instant now) const;
    // The newest automatic backup.
    DataOutcome restoreLatest(Instant now) const;
    bool hasBackup() const;
    // The plan's file goes into backups/ and the set-up runs at the next start.
    DataOutcome startNewPlan(Instant now) const;
    DataOutcome finishPlan(Instant now) const;

private:
    std::string firstTime() const;
    void setFirstTime(const std::string& value) const;

    UserDefaults& defaults_;
    std::filesystem::path folder_;
};
