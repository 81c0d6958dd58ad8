#include "window/frame/command_line.h"

#include "persistence/file_path.h"
#include "shell/program_version.h"
#include "shell/text_format.h"

#include <QCommandLineParser>

#include <utility>

namespace tarnel {

namespace {

constexpr int usageIsWrong = 2;
constexpr const char* newInstance = "new-instance";
constexpr const char* help = "help";
constexpr const char* version = "version";

/// A line of the help: the option, and what it does.
std::string optionLine(const std::string& option, std::string_view meaning) {
    constexpr std::size_t column = 18;
    std::string line = "  --" + option;
    line.resize(column, ' ');
    return line + std::string(meaning) + '\n';
}

std::string usageLine(const StringTable& texts, std::string_view program) {
    program.remove_prefix(program.rfind('/') + 1);
    return filledIn(texts[Text::usage], {program}) + '\n';
}

std::string helpText(const StringTable& texts, std::string_view program) {
    return usageLine(texts, program) + std::string(texts[Text::usageFile]) + "\n\n" +
           optionLine(newInstance, texts[Text::usageNewInstance]) +
           optionLine(help, texts[Text::usageHelp]) +
           optionLine(version, texts[Text::usageVersion]);
}

/// The words as bytes: a file's name need not be in the locale's encoding.
QStringList wordsOf(int argc, char** argv) {
    QStringList words;
    for (int i = 0; i < argc; ++i)
        words.append(QString::fromLatin1(argv[i]));
    return words;
}

/// What the user sees of such a word.
std::string shown(const QString& word) {
    return QString::fromLocal8Bit(word.toLatin1()).toStdString();
}

void addOptions(QCommandLineParser& parser) {
    parser.setSingleDashWordOptionMode(QCommandLineParser::ParseAsLongOptions);
    parser.addOption({{"h", help}, {}});
    parser.addOption({{"v", version}, {}});
    parser.addOption({newInstance, {}});
    // QApplication takes these.
    for (const char* name :
         {"display", "geometry", "icon", "name", "platform", "platformpluginpath", "platformtheme",
          "plugin", "qwindowgeometry", "qwindowicon", "qwindowtitle", "session", "style",
          "stylesheet", "title"})
        parser.addOption({name, {}, name});
    parser.addOption({"reverse", {}});
}

/// What is wrong with the line; nothing if all is well.
std::optional<std::string> faultOf(const QCommandLineParser& parser, bool parsed,
                                   const StringTable& texts) {
    const QStringList unknown = parser.unknownOptionNames();
    if (!unknown.isEmpty())
        return filledIn(texts[Text::unknownOption], {shown(unknown.first())});
    if (!parsed)
        return parser.errorText().toStdString();
    const QStringList files = parser.positionalArguments();
    if (files.size() > 1)
        return filledIn(texts[Text::oneFileOnly], {shown(files[1])});
    return {};
}

} // namespace

CommandLine readCommandLine(int argc, char** argv, const StringTable& texts) {
    QCommandLineParser parser;
    addOptions(parser);
    const bool parsed = parser.parse(wordsOf(argc, argv));
    const std::string_view program = argc > 0 ? argv[0] : "";
    CommandLine line;
    if (parser.isSet(help)) {
        line.answer = helpText(texts, program);
        line.ended = 0;
    } else if (parser.isSet(version)) {
        line.answer =
            std::string(texts[Text::windowTitle]) + ' ' + std::string(programVersion()) + '\n';
        line.ended = 0;
    } else if (const auto fault = faultOf(parser, parsed, texts)) {
        line.answer = *fault + '\n' + usageLine(texts, program);
        line.ended = usageIsWrong;
    } else {
        line.newInstance = parser.isSet(newInstance);
        if (!parser.positionalArguments().isEmpty())
            line.file = absolutePath(parser.positionalArguments().first().toLatin1().toStdString());
    }
    return line;
}

} // namespace tarnel
