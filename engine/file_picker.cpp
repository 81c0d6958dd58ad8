#include "engine/file_picker.h"

#include "core/stations.h"
#include "persistence/cipher.h"

namespace tarnel {

std::string FilePicker::temporaryPath() const {
    const std::string& folder = given.files.c_ScratchPath;
    const bool ended = folder.empty() || folder.back() == '/' || folder.back() == '\\';
    return folder + (ended ? "" : "/") + "temp.ts";
}

std::optional<std::string> FilePicker::pathFor(FileRequest request, std::int16_t how,
                                               const std::string& present,
                                               const std::string& namedByUser) const {
    const bool saves = request == FileRequest::saveChart || request == FileRequest::saveSession;
    if (how == fileRequest::temporary)
        return temporaryPath();
    if (how == fileRequest::byName && (!saves || present == namedByUser))
        return present;
    if (how != fileRequest::ask && how != fileRequest::byName)
        return {};
    return given.messages.chooseFile(request, present);
}

std::string FilePicker::overwritable(const std::string& path) const {
    return given.messages.isShipped(path) ? std::string() : path;
}

std::optional<int> FilePicker::keyToSave() const {
    if (given.files.c_doEncrypt == off)
        return {};
    return drawKey(given.chance.draw());
}

} // namespace tarnel
