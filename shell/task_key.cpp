#include "shell/task_key.h"

#include "core/number_text.h"

#include <algorithm>
#include <array>

namespace tarnel {

namespace {

constexpr std::array<std::string_view, slotCount> stations = {"vor1", "vor2", "ndb1", "ndb2",
                                                              "loc"};
constexpr std::string_view referenceWord = "reference ";
constexpr double fullTurn = 360;
constexpr double mostMinutes = 60;
constexpr double mostMiles = 100;

/// A key put together word by word.
class KeyText {
  public:
    explicit KeyText(std::string_view kind) : text(kind) {}
    KeyText& operator<<(std::string_view word) {
        text.append(" ").append(word);
        return *this;
    }
    KeyText& operator<<(double number) { return *this << std::string_view(numberText(number)); }
    KeyText& operator<<(Slot station) { return *this << inSlot(stations, station); }

    std::string text;
};

struct Writer {
    const std::string& reference;

    static std::string hold(std::string_view kind, const HoldTask& task) {
        return (KeyText(kind) << task.fix << task.inbound
                              << (task.side == HoldingSide::right ? "right" : "left")
                              << task.minutes)
            .text;
    }
    std::string operator()(const LineTask& task) const {
        KeyText key("track");
        key << task.station << task.course << (task.inbound ? "to" : "from");
        if (task.joins)
            key << "join";
        if (task.cut)
            key << "cut" << *task.cut;
        return key.text;
    }
    std::string operator()(const HoldTask& task) const { return hold("hold", task); }
    std::string operator()(const WindTask& task) const { return hold("wind", task.holding); }
    std::string operator()(const ArcTask& task) const {
        return (KeyText("arc") << task.station << task.distance
                               << (task.clockwise ? "clockwise" : "anticlockwise") << task.final
                               << (task.inbound ? "to" : "from"))
            .text;
    }
    std::string operator()(const ReferenceTask& /*task*/) const {
        return std::string(referenceWord) + reference;
    }
};

/// Takes a key apart. Whatever does not fit makes it wrong.
class KeyWords {
  public:
    explicit KeyWords(std::string_view key) : rest(key) {}

    std::string_view word() {
        const std::size_t end = std::min(rest.find(' '), rest.size());
        const std::string_view found = rest.substr(0, end);
        right = right && !found.empty() && end + 1 != rest.size();
        rest.remove_prefix(std::min(end + 1, rest.size()));
        return found;
    }
    /// Takes the next word if it is this one.
    bool takes(std::string_view wanted) {
        const bool found = rest == wanted || rest.starts_with(std::string(wanted) + ' ');
        if (found)
            word();
        return found;
    }
    /// Whether the next word is `yes`, where only that or `no` may stand.
    bool either(std::string_view yes, std::string_view no) {
        const std::string_view found = word();
        right = right && (found == yes || found == no);
        return found == yes;
    }
    double number(double least, double most) {
        const double found = parseNumber(word()).value_or(most + 1);
        right = right && found >= least && found <= most;
        return found;
    }
    Slot station() {
        const auto* const found = std::ranges::find(stations, word());
        right = right && found != stations.end();
        return right ? static_cast<Slot>(found - stations.begin()) : Slot::vor1;
    }
    [[nodiscard]] bool fit() const { return right && rest.empty(); }

  private:
    std::string_view rest;
    bool right = true;
};

Task lineIn(KeyWords& words) {
    LineTask task;
    task.station = words.station();
    task.course = words.number(0, fullTurn);
    task.inbound = words.either("to", "from");
    task.joins = words.takes("join");
    if (words.takes("cut"))
        task.cut = words.number(0, fullTurn);
    return task;
}

HoldTask holdIn(KeyWords& words) {
    HoldTask task;
    task.fix = words.station();
    task.inbound = words.number(0, fullTurn);
    task.side = words.either("right", "left") ? HoldingSide::right : HoldingSide::left;
    task.minutes = words.number(0, mostMinutes);
    return task;
}

Task arcIn(KeyWords& words) {
    ArcTask task;
    task.station = words.station();
    task.distance = words.number(0, mostMiles);
    task.clockwise = words.either("clockwise", "anticlockwise");
    task.final = words.number(0, fullTurn);
    task.inbound = words.either("to", "from");
    return task;
}

} // namespace

std::string taskKey(const Task& task, const std::string& reference) {
    return std::visit(Writer{reference}, task);
}

std::optional<Task> taskOfKey(std::string_view key, const ReferenceOf& referenceOf) {
    if (key.starts_with(referenceWord)) {
        auto samples = referenceOf(std::string(key.substr(referenceWord.size())));
        if (!samples || samples->empty())
            return {};
        return ReferenceTask{*std::move(samples)};
    }
    KeyWords words(key);
    const std::string_view kind = words.word();
    std::optional<Task> task;
    if (kind == "track")
        task = lineIn(words);
    else if (kind == "hold")
        task = holdIn(words);
    else if (kind == "wind")
        task = WindTask{holdIn(words)};
    else if (kind == "arc")
        task = arcIn(words);
    const auto* const arc = task ? std::get_if<ArcTask>(&*task) : nullptr;
    return words.fit() && !(arc && !hasDme(arc->station)) ? task : std::nullopt;
}

} // namespace tarnel
