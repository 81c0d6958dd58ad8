#include "log/log_database.h"

#include "log/log_tables.h"
#include "platform/files.h"
#include "platform/path_text.h"

#include <QSqlError>
#include <QThread>

namespace tarnel {

namespace {

/// How long one program waits for another to finish writing.
constexpr int patienceMilliseconds = 5000;

/// SQLite's results, see sqlite.org/rescode.html; the higher bits only refine them.
enum Result { busy = 5, locked = 6, corrupt = 11, noDatabase = 26, resultMask = 0xFF };

LogTrouble troubleOf(const QSqlError& error) {
    switch (error.nativeErrorCode().toInt() & resultMask) {
    case busy:
    case locked:
        return LogTrouble::busy;
    case corrupt:
    case noDatabase:
        return LogTrouble::damaged;
    default:
        return LogTrouble::unwritable;
    }
}

[[noreturn]] void raise(const QSqlError& error) {
    throw LogFailure(troubleOf(error), error.text().toStdString());
}

QString freshName() {
    static int count = 0;
    return QStringLiteral("training-log-%1").arg(++count);
}

std::uint64_t numberOf(const std::string& path) {
    const auto found = factsOf(pathOf(path));
    return found ? found->number : 0;
}

} // namespace

LogDatabase::LogDatabase(const std::string& path) : file(path), name(freshName()) {
    database = QSqlDatabase::addDatabase(QStringLiteral("QSQLITE"), name);
    database.setDatabaseName(QString::fromStdString(path));
    database.setConnectOptions(QStringLiteral("QSQLITE_BUSY_TIMEOUT=%1").arg(patienceMilliseconds));
    try {
        if (!database.open())
            raise(database.lastError());
        setUp();
    } catch (const LogFailure&) {
        database = {};
        QSqlDatabase::removeDatabase(name);
        throw;
    }
    fileNumber = numberOf(path);
}

LogDatabase::~LogDatabase() {
    database = {};
    QSqlDatabase::removeDatabase(name);
}

QSqlQuery LogDatabase::run(const QString& statement, const QVariantList& values) {
    QSqlQuery query(database);
    query.setForwardOnly(true);
    if (!query.prepare(statement))
        raise(query.lastError());
    for (const QVariant& value : values)
        query.addBindValue(value);
    if (!query.exec())
        raise(query.lastError());
    return query;
}

bool LogDatabase::next(QSqlQuery& query) {
    if (query.next())
        return true;
    if (query.lastError().isValid())
        raise(query.lastError());
    return false;
}

/// Readers don't wait for writers, and every write is on the disk before it is reported. While
/// another program makes the file this one, too, has to wait.
void LogDatabase::setUp() {
    constexpr int pause = 20;
    for (int left = patienceMilliseconds / pause;; --left) {
        QSqlQuery mode(database);
        const bool asked = mode.exec(QStringLiteral("PRAGMA journal_mode=WAL")) && mode.next();
        if (asked && mode.value(0).toString() == QLatin1String("wal"))
            break;
        const LogTrouble trouble = troubleOf(mode.lastError());
        if (trouble != LogTrouble::busy || left == 0)
            throw LogFailure(trouble, mode.lastError().text().toStdString());
        QThread::msleep(pause);
    }
    run(QStringLiteral("PRAGMA synchronous=FULL"));
    run(QStringLiteral("PRAGMA foreign_keys=ON"));
    migrate();
}

int LogDatabase::version() {
    QSqlQuery found = run(QStringLiteral("PRAGMA user_version"));
    return next(found) ? found.value(0).toInt() : 0;
}

/// Of two programs that start at once the second finds the work done.
void LogDatabase::migrate() {
    const int newest = static_cast<int>(logMigrations().size());
    if (version() > newest)
        throw LogFailure(LogTrouble::ofNewerVersion, file);
    if (version() == newest)
        return;
    together([&] {
        for (int present = version(); present < newest; ++present)
            for (const char* statement : logMigrations()[static_cast<std::size_t>(present)])
                run(QString::fromLatin1(statement));
        run(QStringLiteral("PRAGMA user_version=%1").arg(newest));
    });
}

bool LogDatabase::stillThere() const {
    return numberOf(file) == fileNumber;
}

void LogDatabase::check() {
    QSqlQuery found = run(QStringLiteral("PRAGMA quick_check(1)"));
    const QString told = next(found) ? found.value(0).toString() : QString();
    if (told != QLatin1String("ok"))
        throw LogFailure(LogTrouble::damaged, told.toStdString());
}

} // namespace tarnel
