#pragma once
// What the benchmarks that run screens share: a GUI application drawing offscreen, and a data
// folder as set-up leaves it.

#include <filesystem>

// Made once, on first use; the kit's types are registered with it.
void ensureGuiApplication();

// A fresh folder under the temporary one holding the defaults ("firstTime" = "no") and a copy of
// the shipped food.db with a 1850-calorie plan that started 10 days ago: 366 days, each with
// 1240 calories eaten and 220 burned.
std::filesystem::path plannedDataFolder(const char* name);
