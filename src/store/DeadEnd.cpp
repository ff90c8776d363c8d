#include "store/DeadEnd.h"

#include "store/PlanBackup.h"
#include "store/PlanCheck.h"

std::optional<DeadEnd> findDeadEnd(const std::filesystem::path& dataFolder, Instant now,
                                   bool fileWasMissing) {
    const std::filesystem::path database = dataFolder / "food.db";
    const PlanCheck check = checkPlan(database);
    DeadEnd end{.canExport = check.facts.days > 0,
                .canRestore = latestBackup(dataFolder).has_value()};
    const std::string file = database.string();
    if (fileWasMissing) {
        end.cause = "the plan's file " + file + " is missing: it was deleted or moved";
    } else if (check.fault == PlanFault::setUpUnfinished) {
        end.setUpInterrupted = true;
        end.cause =
            "the set-up of the plan in " + file + " was interrupted before its days were stored";
    } else if (!check.ok()) {
        end.canStartNew = check.fault != PlanFault::locked;
        end.cause = "the plan in " + file + " cannot be opened: " + check.text();
    } else if (const auto ended = planEnded(check.facts, now)) {
        end.cause =
            "the plan in " + file + " " + ended->text().substr(std::string("the plan ").size());
    } else {
        return std::nullopt;
    }
    return end;
}

std::string DeadEnd::forTerminal() const {
    std::string text = cause + ".";
    if (setUpInterrupted)
        text += "\n  calorie-counter --finish-plan       finishes the plan from the stored profile";
    if (canExport) text += "\n  calorie-counter --export-csv FILE   saves its days as a CSV file";
    if (canRestore)
        text += "\n  calorie-counter --restore latest    puts back the newest automatic backup";
    if (canStartNew) {
        text +=
            "\n  calorie-counter --new-plan          keeps this file in backups/ and starts the "
            "set-up again";
    } else {
        text += "\n  Close the program that holds it, then start again.";
    }
    return text;
}
