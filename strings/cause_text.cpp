#include "strings/cause_text.h"

namespace tarnel {

namespace {

Text textOf(Cause cause) {
    switch (cause) {
    case Cause::invalidCall:
        return Text::causeInvalidCall;
    case Cause::overflow:
        return Text::causeOverflow;
    case Cause::subscriptOutOfRange:
        return Text::causeSubscriptOutOfRange;
    case Cause::divisionByZero:
        return Text::causeDivisionByZero;
    case Cause::fileNotFound:
        return Text::causeFileNotFound;
    case Cause::linkLeadsNowhere:
        return Text::causeLinkLeadsNowhere;
    case Cause::nameNotUtf8:
        return Text::causeNameNotUtf8;
    case Cause::fileTooLarge:
        return Text::causeFileTooLarge;
    case Cause::fileWithoutFlight:
        return Text::causeFileWithoutFlight;
    case Cause::notAFile:
        return Text::causeNotAFile;
    case Cause::fileNotReadable:
        return Text::causeFileNotReadable;
    case Cause::fileReadOnly:
        return Text::causeFileReadOnly;
    case Cause::folderReadOnly:
        return Text::causeFolderReadOnly;
    case Cause::diskReadOnly:
        return Text::causeDiskReadOnly;
    case Cause::folderNotFound:
        return Text::causeFolderNotFound;
    case Cause::nameTooLong:
        return Text::causeNameTooLong;
    case Cause::fileInUse:
        return Text::causeFileInUse;
    case Cause::diskFull:
        return Text::causeDiskFull;
    case Cause::deviceError:
        return Text::causeDeviceError;
    case Cause::accessFailed:
        break;
    }
    return Text::causeAccessFailed;
}

} // namespace

std::string_view causeText(const StringTable& texts, Cause cause) {
    return texts[textOf(cause)];
}

} // namespace tarnel
