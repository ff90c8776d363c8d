#include "store/WriteFailure.h"

#include <sqlite3.h>

#include <cerrno>

const char* writeFailureText(WriteFailure failure) {
    switch (failure) {
        case WriteFailure::diskFull:
            return "the disk is full";
        case WriteFailure::readOnly:
            return "the file is read-only";
        case WriteFailure::ioError:
            return "the disk could not be written";
        case WriteFailure::locked:
            return "another program holds the file";
        case WriteFailure::damaged:
            return "the file is damaged";
        case WriteFailure::cannotOpen:
            return "the file could not be opened";
        case WriteFailure::other:
            break;
    }
    return "the file did not take the change";
}

WriteFailure writeFailureFor(int sqliteResult, int systemError) {
    switch (sqliteResult & 0xff) {
        case SQLITE_FULL:
            return WriteFailure::diskFull;
        case SQLITE_READONLY:
            return WriteFailure::readOnly;
        case SQLITE_BUSY:
        case SQLITE_LOCKED:
            return WriteFailure::locked;
        case SQLITE_NOTADB:
        case SQLITE_CORRUPT:
            return WriteFailure::damaged;
        case SQLITE_IOERR:
        case SQLITE_CANTOPEN:
        case SQLITE_PERM:
            break;
        default:
            return WriteFailure::other;
    }
    // SQLite calls only a short write or ENOSPC full: the file-size limit (EFBIG) comes as an I/O
    // error, and a journal that may not be created in its folder as an open error.
    switch (systemError) {
        case ENOSPC:
        case EDQUOT:
        case EFBIG:
            return WriteFailure::diskFull;
        case EACCES:
        case EPERM:
        case EROFS:
            return WriteFailure::readOnly;
        default:
            return (sqliteResult & 0xff) == SQLITE_IOERR ? WriteFailure::ioError
                                                         : WriteFailure::cannotOpen;
    }
}
