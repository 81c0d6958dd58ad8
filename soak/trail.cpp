#include "soak/trail.h"

#include <cstdio>

namespace tarnel {

void Trail::note(const std::string& deed) {
    constexpr std::size_t kept = 60;
    constexpr std::uint32_t prime = 16777619U;
    for (const char letter : deed)
        hash = (hash ^ static_cast<unsigned char>(letter)) * prime;
    last.push_back(deed);
    if (last.size() > kept)
        last.pop_front();
    ++count;
}

void Trail::print() const {
    std::fprintf(stderr, "The last of %d deeds:\n", count);
    for (const std::string& deed : last)
        std::fprintf(stderr, "  %s\n", deed.c_str());
}

int Reach::usesOf(const std::string& name) const {
    const auto found = uses.find(name);
    return found == uses.end() ? 0 : found->second;
}

std::vector<std::string> Reach::never() const {
    std::vector<std::string> names;
    for (const auto& [name, times] : uses)
        if (times == 0)
            names.push_back(name);
    return names;
}

} // namespace tarnel
