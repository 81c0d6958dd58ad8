#include "exercises/settings_store.h"

#include "core/run_time_error.h"

namespace tarnel {

std::string MemorySettingsStore::value(std::string_view application, std::string_view section,
                                       std::string_view key, std::string_view fallback) const {
    const auto app = applications.find(application);
    if (app == applications.end())
        return std::string(fallback);
    const auto group = app->second.find(section);
    if (group == app->second.end())
        return std::string(fallback);
    const auto entry = group->second.find(key);
    return entry == group->second.end() ? std::string(fallback) : entry->second;
}

void MemorySettingsStore::setValue(std::string_view application, std::string_view section,
                                   std::string_view key, std::string_view value) {
    applications[std::string(application)][std::string(section)][std::string(key)] = value;
}

void MemorySettingsStore::deleteSection(std::string_view application, std::string_view section) {
    if (applications[std::string(application)].erase(std::string(section)) == 0)
        throw RunTimeError(Cause::invalidCall);
}

} // namespace tarnel
