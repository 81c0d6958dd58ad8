#include "strings/cause_text.h"

#include <algorithm>
#include <iterator>

namespace tarnel {

namespace {

struct CauseRow {
    Cause cause;
    Text text;
};

constexpr CauseRow causeRows[] = {
    {Cause::invalidCall, Text::causeInvalidCall},
    {Cause::overflow, Text::causeOverflow},
    {Cause::subscriptOutOfRange, Text::causeSubscriptOutOfRange},
    {Cause::divisionByZero, Text::causeDivisionByZero},
    {Cause::fileNotFound, Text::causeFileNotFound},
    {Cause::linkLeadsNowhere, Text::causeLinkLeadsNowhere},
    {Cause::nameNotUtf8, Text::causeNameNotUtf8},
    {Cause::fileTooLarge, Text::causeFileTooLarge},
    {Cause::fileWithoutFlight, Text::causeFileWithoutFlight},
    {Cause::notAFile, Text::causeNotAFile},
    {Cause::fileNotReadable, Text::causeFileNotReadable},
    {Cause::fileReadOnly, Text::causeFileReadOnly},
    {Cause::folderReadOnly, Text::causeFolderReadOnly},
    {Cause::diskReadOnly, Text::causeDiskReadOnly},
    {Cause::folderNotFound, Text::causeFolderNotFound},
    {Cause::nameTooLong, Text::causeNameTooLong},
    {Cause::fileInUse, Text::causeFileInUse},
    {Cause::diskFull, Text::causeDiskFull},
    {Cause::deviceError, Text::causeDeviceError},
    {Cause::accessFailed, Text::causeAccessFailed},
};

} // namespace

std::string_view causeText(const StringTable& texts, Cause cause) {
    const auto* row = std::ranges::find(causeRows, cause, &CauseRow::cause);
    return texts[row == std::end(causeRows) ? Text::causeAccessFailed : row->text];
}

} // namespace tarnel
