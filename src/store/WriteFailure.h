#pragma once
// Why a change did not reach the plan's file, in the few kinds the person can act on.

enum class WriteFailure {
    diskFull,    // SQLITE_FULL, or no room / the file-size limit behind an I/O error
    readOnly,    // SQLITE_READONLY, or the file or its folder may not be written
    ioError,     // any other I/O error
    locked,      // another connection kept its lock past the wait
    damaged,     // the file is not a database or fails to read as one
    cannotOpen,  // the file (or its folder) could not be opened at all
    other,       // the statement itself failed (a missing table, a value it cannot take)
};

// Short and plain, for the overlay, which puts "Not saved: " in front: "the disk is full".
const char* writeFailureText(WriteFailure failure);

// The kind for an SQLite result code and the system error behind it (sqlite3_system_errno).
WriteFailure writeFailureFor(int sqliteResult, int systemError);
