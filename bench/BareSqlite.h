#pragma once
// What the floors of the database benchmarks are made of: a fresh copy of the shipped food.db in
// the working folder, and one statement through the bare SQLite calls the store makes.

#include <string>

std::string freshDatabase(const char* fileName);
void runBareStatement(const std::string& path, const char* sql);
// The set-up's day insert, as the store formats it.
std::string dayInsertSql(const char* date, int id);
