#include "log/sqlite_log.h"

#include "log/finding_names.h"
#include "log/log_database.h"
#include "persistence/lock_file.h"

#include <QThread>

#include <map>
#include <set>

namespace tarnel {

namespace {

QString text(const std::string& utf8) {
    return QString::fromStdString(utf8);
}

qlonglong whole(std::int64_t number) {
    return number;
}

QVariant number(const std::optional<double>& value) {
    return value ? QVariant(*value) : QVariant(QMetaType(QMetaType::Double));
}

std::optional<double> optionalNumber(const QVariant& value) {
    return value.isNull() ? std::nullopt : std::optional(value.toDouble());
}

/// The columns that `takeFacts` reads, in its order.
constexpr const char* factColumns =
    "at, asked, course, exercise, question, place, spot, correct, took";
constexpr int factCount = 9;

void takeFacts(const QSqlQuery& row, AnswerFacts& facts) {
    facts.when = row.value(0).toLongLong();
    facts.asked = row.value(1).toLongLong();
    facts.course = row.value(2).toInt();
    facts.exercise = static_cast<ExerciseType>(row.value(3).toInt());
    facts.question = row.value(4).toLongLong();
    facts.row = row.value(5).toInt();
    facts.spot = static_cast<Text>(row.value(6).toInt());
    facts.right = row.value(7).toBool();
    facts.milliseconds = row.value(8).toLongLong();
}

std::optional<Finding> findingIn(const QSqlQuery& row) {
    const std::optional<FindingKind> kind = findingOf(row.value(1).toString().toStdString());
    if (!kind)
        return {};
    return Finding{.kind = *kind,
                   .value = row.value(2).toDouble(),
                   .expected = optionalNumber(row.value(3)),
                   .tolerance = optionalNumber(row.value(4)),
                   .verdict = static_cast<Verdict>(row.value(5).toInt()),
                   .weight = row.value(6).toDouble(),
                   .samples = {row.value(7).toInt(), row.value(8).toInt()},
                   .turn = row.value(9).toInt()};
}

/// The file of a flight's session; empty if there is no such flight.
std::string fileOf(LogDatabase& log, std::int64_t flight) {
    QSqlQuery rows =
        log.run(QStringLiteral("SELECT file FROM flights WHERE id = ?"), {whole(flight)});
    return LogDatabase::next(rows) ? rows.value(0).toString().toStdString() : std::string();
}

/// The flight that is kept already; 0 for none.
std::int64_t sameAs(LogDatabase& log, const LoggedFlight& flight) {
    QSqlQuery rows = log.run(QStringLiteral("SELECT id FROM flights WHERE task = ? AND"
                                            " fingerprint = ? AND fingerprint <> 0"),
                             {text(flight.taskKey), whole(flight.fingerprint)});
    return LogDatabase::next(rows) ? rows.value(0).toLongLong() : 0;
}

} // namespace

SqliteLog::SqliteLog(std::string path) : folder(std::move(path)) {}

SqliteLog::~SqliteLog() = default;

/// Another program may have set the file aside that is open here.
LogDatabase& SqliteLog::database() {
    if (open && !open->stillThere())
        open.reset();
    if (!open) {
        folder.prepare();
        open = std::make_unique<LogDatabase>(folder.database());
        removeOrphans(*open);
    }
    return *open;
}

/// The sessions that a killed program left without a row. Who writes one holds the log, so none
/// that is about to get its row is taken for one. What can't be removed now stays for the next
/// opening.
void SqliteLog::removeOrphans(LogDatabase& log) const try {
    const auto orphans = [&] {
        std::set<std::string> names = folder.sessions();
        QSqlQuery rows = log.run(QStringLiteral("SELECT file FROM flights"));
        while (LogDatabase::next(rows))
            names.erase(rows.value(0).toString().toStdString());
        return names;
    };
    if (orphans().empty())
        return;
    log.together([&] {
        for (const std::string& name : orphans())
            folder.remove(name);
    });
} catch (const LogFailure&) {
}

/// Does `work` with the database, and if that shows that it is damaged, once more with a new one.
template <class Work>
auto SqliteLog::run(Work work) {
    try {
        return work(database());
    } catch (const LogFailure& failure) {
        if (failure.trouble() != LogTrouble::damaged)
            throw;
    }
    replaceDamaged();
    return work(database());
}

/// Of two programs that find the damage one sets the log aside; the other finds a sound one then.
void SqliteLog::replaceDamaged() {
    constexpr int tries = 100;
    constexpr int pause = 20;
    open.reset();
    std::optional<LockFile> lock;
    for (int left = tries; !(lock = LockFile::take(folder.lockPath())) && left > 0; --left)
        QThread::msleep(pause);
    try {
        return database().check();
    } catch (const LogFailure& failure) {
        open.reset();
        if (failure.trouble() != LogTrouble::damaged)
            throw;
    }
    const std::string aside = folder.setAside();
    (void)database();
    onSetAside(aside);
}

void SqliteLog::add(const AnsweredRow& row) {
    run([&](LogDatabase& log) {
        log.together([&] {
            log.run(QStringLiteral("INSERT OR IGNORE INTO courses(key, name) VALUES(?, ?)"),
                    {text(row.courseKey), text(row.courseName)});
            log.run(QStringLiteral("INSERT INTO answers(at, asked, course, exercise, question,"
                                   " place, places, spot, correct, took, given, answer) VALUES"
                                   "(?, ?, (SELECT id FROM courses WHERE key = ?),"
                                   " ?, ?, ?, ?, ?, ?, ?, ?, ?)"),
                    {whole(row.when), whole(row.asked), text(row.courseKey),
                     static_cast<int>(row.exercise), whole(row.question), row.row, row.rows,
                     static_cast<int>(row.spot), row.right, whole(row.milliseconds),
                     text(row.given), text(row.answer)});
        });
    });
}

std::vector<LoggedCourse> SqliteLog::courses() {
    return run([](LogDatabase& log) {
        std::vector<LoggedCourse> found;
        QSqlQuery rows = log.run(QStringLiteral("SELECT id, key, name FROM courses ORDER BY id"));
        while (LogDatabase::next(rows))
            found.push_back({rows.value(0).toInt(), rows.value(1).toString().toStdString(),
                             rows.value(2).toString().toStdString()});
        return found;
    });
}

void SqliteLog::eachAnswer(const AnswerVisitor& take) {
    run([&](LogDatabase& log) {
        QSqlQuery rows = log.run(
            QStringLiteral("SELECT %1 FROM answers ORDER BY id").arg(QLatin1String(factColumns)));
        AnswerFacts facts;
        while (LogDatabase::next(rows)) {
            takeFacts(rows, facts);
            take(facts);
        }
    });
}

void SqliteLog::eachRow(const std::function<void(const AnsweredRow&)>& take) {
    run([&](LogDatabase& log) {
        QSqlQuery rows = log.run(QStringLiteral("SELECT %1, key, name, places, given, answer FROM"
                                                " answers JOIN courses ON courses.id = course"
                                                " ORDER BY answers.id")
                                     .arg(QLatin1String(factColumns)));
        while (LogDatabase::next(rows)) {
            AnsweredRow row;
            takeFacts(rows, row);
            const auto textAt = [&](int column) {
                return rows.value(factCount + column).toString().toStdString();
            };
            row.courseKey = textAt(0);
            row.courseName = textAt(1);
            row.rows = rows.value(factCount + 2).toInt();
            row.given = textAt(3);
            row.answer = textAt(4);
            take(row);
        }
    });
}

std::vector<QuestionStanding> SqliteLog::standings(const std::string& courseKey,
                                                   ExerciseType exercise) {
    return run([&](LogDatabase& log) {
        QSqlQuery rows =
            log.run(QStringLiteral("SELECT question, asked, SUM(correct), MAX(places) FROM answers"
                                   " WHERE course = (SELECT id FROM courses WHERE key = ?)"
                                   " AND exercise = ? GROUP BY question, asked"
                                   " ORDER BY question, asked"),
                    {text(courseKey), static_cast<int>(exercise)});
        std::vector<QuestionStanding> found;
        while (LogDatabase::next(rows)) {
            const QuestionStanding standing{rows.value(0).toLongLong(), rows.value(1).toLongLong(),
                                            rows.value(2).toInt() == rows.value(3).toInt()};
            if (found.empty() || found.back().question != standing.question)
                found.push_back(standing);
            else
                found.back() = standing;
        }
        return found;
    });
}

/// In the place of the row that the flight's number says, or in a new one.
std::int64_t SqliteLog::put(LogDatabase& log, const LoggedFlight& flight, const std::string& file,
                            std::size_t bytes) {
    const QVariantList values = {
        whole(flight.when), text(flight.title),        static_cast<qlonglong>(bytes),
        text(file),         whole(flight.fingerprint), text(flight.taskKey)};
    std::int64_t id = flight.id;
    if (log.run(QStringLiteral("UPDATE flights SET at = ?, title = ?, bytes = ?, file = ?,"
                               " fingerprint = ? WHERE task = ? AND id = ?"),
                values + QVariantList{whole(id)})
            .numRowsAffected() == 0)
        id = log.run(QStringLiteral("INSERT INTO flights(at, title, bytes, file, fingerprint, task,"
                                    " attempt, pinned) VALUES(?, ?, ?, ?, ?, ?, (SELECT"
                                    " COALESCE(MAX(attempt), 0) + 1 FROM flights WHERE task = ?),"
                                    " ?)"),
                     values + QVariantList{text(flight.taskKey), flight.pinned})
                 .lastInsertId()
                 .toLongLong();
    log.run(QStringLiteral("DELETE FROM findings WHERE flight = ?"), {whole(id)});
    int place = 0;
    for (const Finding& finding : flight.findings)
        log.run(QStringLiteral("INSERT INTO findings VALUES(?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?)"),
                {whole(id), place++, text(std::string(nameOfFinding(finding.kind))), finding.value,
                 number(finding.expected), number(finding.tolerance),
                 static_cast<int>(finding.verdict), finding.weight, finding.samples.first,
                 finding.samples.last, finding.turn});
    return id;
}

/// The file is written while the log is held, and before its row is stored: a row always has one.
std::int64_t SqliteLog::add(const LoggedFlight& flight, const std::string& session,
                            const FlightLimits& limits) {
    const std::int64_t id = run([&](LogDatabase& log) {
        std::int64_t kept = 0;
        std::string before; // the file of what is replaced
        std::string file;
        try {
            log.together([&] {
                if ((kept = sameAs(log, flight)) != 0)
                    return;
                before = fileOf(log, flight.id);
                file = folder.store(session, flight.when);
                kept = put(log, flight, file, session.size());
            });
        } catch (const LogFailure&) {
            folder.remove(file);
            throw;
        }
        if (kept == flight.id)
            folder.remove(before);
        return kept;
    });
    prune(limits);
    return id;
}

std::vector<LoggedFlight> SqliteLog::flights() {
    return run([](LogDatabase& log) {
        std::vector<LoggedFlight> found;
        std::map<std::int64_t, std::size_t> placeOf;
        QSqlQuery rows =
            log.run(QStringLiteral("SELECT id, at, task, title, attempt, bytes, pinned,"
                                   " fingerprint FROM flights"
                                   " ORDER BY at DESC, id DESC"));
        while (LogDatabase::next(rows)) {
            placeOf[rows.value(0).toLongLong()] = found.size();
            found.push_back({.id = rows.value(0).toLongLong(),
                             .when = rows.value(1).toLongLong(),
                             .taskKey = rows.value(2).toString().toStdString(),
                             .fingerprint = rows.value(7).toLongLong(),
                             .title = rows.value(3).toString().toStdString(),
                             .attempt = rows.value(4).toInt(),
                             .findings = {},
                             .bytes = rows.value(5).toLongLong(),
                             .pinned = rows.value(6).toBool()});
        }
        QSqlQuery told = log.run(
            QStringLiteral("SELECT flight, kind, value, expected, tolerance, verdict, weight,"
                           " first, last, turn FROM findings ORDER BY flight, place"));
        while (LogDatabase::next(told)) {
            const auto flight = placeOf.find(told.value(0).toLongLong());
            if (const auto finding = findingIn(told); finding && flight != placeOf.end())
                found[flight->second].findings.push_back(*finding);
        }
        return found;
    });
}

std::optional<std::string> SqliteLog::session(std::int64_t flight) {
    return run([&](LogDatabase& log) { return folder.read(fileOf(log, flight)); });
}

void SqliteLog::pin(std::int64_t flight, bool pinned) {
    run([&](LogDatabase& log) {
        log.run(QStringLiteral("UPDATE flights SET pinned = ? WHERE id = ?"),
                {pinned, whole(flight)});
    });
}

/// The row goes first: a row in the log always has its file.
void SqliteLog::remove(std::int64_t flight) {
    run([&](LogDatabase& log) {
        const std::string file = fileOf(log, flight);
        log.run(QStringLiteral("DELETE FROM flights WHERE id = ?"), {whole(flight)});
        folder.remove(file);
    });
}

void SqliteLog::prune(const FlightLimits& limits) {
    for (const std::int64_t flight : flightsToLetGo(flights(), limits))
        remove(flight);
}

/// Nothing of it can be read in the files afterwards; another program that is reading hinders that.
void SqliteLog::clear() {
    run([&](LogDatabase& log) {
        log.together([&] {
            for (const char* table :
                 {"findings", "flights", "answers", "courses", "sqlite_sequence"})
                log.run(QStringLiteral("DELETE FROM %1").arg(QLatin1String(table)));
        });
        log.run(QStringLiteral("VACUUM"));
        QSqlQuery written = log.run(QStringLiteral("PRAGMA wal_checkpoint(TRUNCATE)"));
        if (!LogDatabase::next(written) || written.value(0).toInt() != 0)
            throw LogFailure(LogTrouble::busy, folder.database());
    });
    folder.removeAllSessions();
    folder.removeSetAside();
}

} // namespace tarnel
