#include "log/log_tables.h"

namespace tarnel {

std::span<const std::vector<const char*>> logMigrations() {
    // Times are milliseconds since 1970 UTC.
    static const std::vector<const char*> steps[] = {
        {"CREATE TABLE courses(id INTEGER PRIMARY KEY, key TEXT NOT NULL UNIQUE,"
         " name TEXT NOT NULL)",
         "CREATE TABLE answers(id INTEGER PRIMARY KEY, at INTEGER NOT NULL,"
         " asked INTEGER NOT NULL, course INTEGER NOT NULL REFERENCES courses(id),"
         " exercise INTEGER NOT NULL, question INTEGER NOT NULL, place INTEGER NOT NULL,"
         " places INTEGER NOT NULL, spot INTEGER NOT NULL, correct INTEGER NOT NULL,"
         " took INTEGER NOT NULL, given TEXT NOT NULL, answer TEXT NOT NULL)",
         "CREATE INDEX answers_by_question ON answers(course, exercise, question, asked)",
         "CREATE TABLE flights(id INTEGER PRIMARY KEY AUTOINCREMENT, at INTEGER NOT NULL,"
         " task TEXT NOT NULL, title TEXT NOT NULL, attempt INTEGER NOT NULL,"
         " bytes INTEGER NOT NULL, pinned INTEGER NOT NULL, file TEXT NOT NULL)",
         "CREATE TABLE findings(flight INTEGER NOT NULL REFERENCES flights(id) ON DELETE CASCADE,"
         " place INTEGER NOT NULL, kind TEXT NOT NULL, value REAL NOT NULL, expected REAL,"
         " tolerance REAL, verdict INTEGER NOT NULL, weight REAL NOT NULL, first INTEGER NOT NULL,"
         " last INTEGER NOT NULL, turn INTEGER NOT NULL, PRIMARY KEY(flight, place))"
         " WITHOUT ROWID"},
        {"ALTER TABLE flights ADD COLUMN fingerprint INTEGER NOT NULL DEFAULT 0"},
    };
    return steps;
}

} // namespace tarnel
