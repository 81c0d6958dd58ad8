#include "window/file_settings.h"

#include <QSettings>
#include <QStandardPaths>
#include <QStringList>
#include <QVariant>

#include <utility>

namespace tarnel {

namespace {

/// The signs that the file's keys can't have, and the one that escapes them.
constexpr std::pair<QChar, const char*> escapes[] = {
    {QLatin1Char('%'), "%25"}, {QLatin1Char('/'), "%2F"}, {QLatin1Char('\\'), "%5C"}};

QString fromUtf8(std::string_view text) {
    return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

QString escaped(std::string_view part) {
    QString result = fromUtf8(part);
    for (const auto& [sign, escape] : escapes)
        result.replace(sign, QLatin1String(escape));
    return result;
}

std::string unescaped(QString part) {
    for (const auto& [sign, escape] : escapes)
        if (sign != QLatin1Char('%'))
            part.replace(QLatin1String(escape), QString(sign));
    return part.replace(QLatin1String("%25"), QLatin1String("%")).toStdString();
}

/// A value with commas that nobody quoted comes as a list.
std::string textOfValue(const QVariant& value) {
    return value.toStringList().join(QLatin1Char(',')).toStdString();
}

} // namespace

FileSettings::FileSettings(QString file) : path(std::move(file)) {
    read();
}

FileSettings::~FileSettings() {
    FileSettings::flush();
}

void FileSettings::read() {
    const QSettings file(path, QSettings::IniFormat);
    for (const QString& key : file.allKeys()) {
        const QStringList parts = key.split(QLatin1Char('/'));
        if (parts.size() == 3)
            MemorySettingsStore::setValue(unescaped(parts[0]), unescaped(parts[1]),
                                          unescaped(parts[2]), textOfValue(file.value(key)));
    }
}

void FileSettings::setValue(std::string_view application, std::string_view section,
                            std::string_view key, std::string_view text) {
    if (value(application, section, key, {}) == text && !text.empty())
        return;
    MemorySettingsStore::setValue(application, section, key, text);
    changed = true;
}

void FileSettings::deleteSection(std::string_view application, std::string_view section) {
    MemorySettingsStore::deleteSection(application, section);
    changed = true;
}

void FileSettings::flush() {
    if (!changed)
        return;
    QSettings file(path, QSettings::IniFormat);
    for (const auto& [application, sections] : applications) {
        file.remove(escaped(application));
        for (const auto& [section, keys] : sections)
            for (const auto& [key, text] : keys)
                file.setValue(escaped(application) + QLatin1Char('/') + escaped(section) +
                                  QLatin1Char('/') + escaped(key),
                              fromUtf8(text));
    }
    file.sync();
    changed = file.status() != QSettings::NoError;
}

QString userSettingsFile() {
    return QStandardPaths::writableLocation(QStandardPaths::AppConfigLocation) +
           QStringLiteral("/settings.ini");
}

} // namespace tarnel
