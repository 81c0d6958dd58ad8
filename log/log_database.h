#pragma once

#include "shell/training_log.h"

#include <QSqlDatabase>
#include <QSqlQuery>
#include <QVariantList>

#include <cstdint>
#include <string>

namespace tarnel {

/// `LogDatabase`: an open connection to the file of a log, whose tables it brings up to date. What
/// goes wrong is thrown as a `LogFailure`.
class LogDatabase {
  public:
    /// Opens the file, or makes it in an existing folder.
    explicit LogDatabase(const std::string& path);
    ~LogDatabase();
    LogDatabase(const LogDatabase&) = delete;
    LogDatabase& operator=(const LogDatabase&) = delete;

    /// Runs a statement with these values in the places of its "?". The query of a `SELECT` stands
    /// before its first row; it must not outlive the database.
    QSqlQuery run(const QString& statement, const QVariantList& values = {});
    /// The next row of a query; false behind the last one.
    static bool next(QSqlQuery& query);

    /// Runs `work` so that all of it is done or nothing, and stored when this comes back.
    template <class Work>
    void together(Work work) {
        run(QStringLiteral("BEGIN IMMEDIATE"));
        try {
            work();
            run(QStringLiteral("COMMIT"));
        } catch (const LogFailure&) {
            QSqlQuery(database).exec(QStringLiteral("ROLLBACK"));
            throw;
        }
    }

    /// Whether the file at that path is still the one that is open.
    [[nodiscard]] bool stillThere() const;
    /// Reads all of the file. Throws a `LogFailure` if it is damaged.
    void check();

  private:
    void setUp();
    [[nodiscard]] int version();
    void migrate();

    std::string file;
    QString name; ///< of the connection
    QSqlDatabase database;
    std::uint64_t fileNumber = 0; ///< of that which is open
};

} // namespace tarnel
