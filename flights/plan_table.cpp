#include "flights/plan_table.h"

#include "flights/plan_error.h"

#define TOML_EXCEPTIONS 1
#include <toml++/toml.h>

#include <algorithm>

namespace tarnel {

/// A table, and the file that keeps it alive.
struct PlanTable::Source {
    std::string file;
    std::shared_ptr<const toml::table> root;
    const toml::table* table;

    [[nodiscard]] std::shared_ptr<const Source> inner(const toml::table* part) const {
        return std::make_shared<Source>(Source{file, root, part});
    }
    [[noreturn]] void refuse(const toml::node& node, const std::string& expected) const {
        throw PlanError(file, lineOf(node), expected);
    }
    static int lineOf(const toml::node& node) {
        return std::max(static_cast<int>(node.source().begin.line), 1);
    }
};

namespace {

std::string quoted(std::string_view key) {
    return "'" + std::string(key) + "'";
}

} // namespace

PlanTable PlanTable::parse(std::string_view text, const std::string& file) {
    try {
        const auto root = std::make_shared<const toml::table>(toml::parse(text, file));
        return PlanTable(std::make_shared<Source>(Source{file, root, root.get()}));
    } catch (const toml::parse_error& error) {
        throw PlanError(file, static_cast<int>(error.source().begin.line),
                        "valid TOML (" + std::string(error.description()) + ")");
    }
}

std::optional<double> PlanTable::number(std::string_view key, const Range<double>& range) {
    known.push_back(key);
    const toml::node* node = source->table->get(key);
    if (!node)
        return std::nullopt;
    const auto value = node->value<double>();
    if (!node->is_number() || !value || !range.contains(*value))
        source->refuse(*node, quoted(key) + " as a number from " + range.inWords());
    return value;
}

std::optional<std::int16_t> PlanTable::wholeThat(std::string_view key,
                                                 const std::function<bool(std::int64_t)>& fits,
                                                 const std::string& expected) {
    known.push_back(key);
    const toml::node* node = source->table->get(key);
    if (!node)
        return std::nullopt;
    const auto value = node->value_exact<std::int64_t>();
    if (!value || !fits(*value))
        source->refuse(*node, quoted(key) + " as a whole number" + expected);
    return static_cast<std::int16_t>(*value);
}

std::optional<std::int16_t> PlanTable::whole(std::string_view key,
                                             const Range<std::int64_t>& range) {
    return wholeThat(
        key, [&range](std::int64_t value) { return range.contains(value); },
        " from " + range.inWords());
}

std::optional<std::int16_t> PlanTable::wholeOrZero(std::string_view key,
                                                   const Range<std::int64_t>& range) {
    return wholeThat(
        key, [&range](std::int64_t value) { return value == 0 || range.contains(value); },
        ": 0, or " + range.inWords());
}

std::optional<bool> PlanTable::truth(std::string_view key) {
    known.push_back(key);
    const toml::node* node = source->table->get(key);
    if (!node)
        return std::nullopt;
    if (!node->is_boolean())
        source->refuse(*node, quoted(key) + " as true or false");
    return node->value<bool>();
}

std::optional<std::string> PlanTable::text(std::string_view key,
                                           const std::function<bool(const std::string&)>& good,
                                           const std::string& expected) {
    known.push_back(key);
    const toml::node* node = source->table->get(key);
    if (!node)
        return std::nullopt;
    auto value = node->value_exact<std::string>();
    if (!value || !good(*value))
        source->refuse(*node, quoted(key) + " as " + expected);
    return value;
}

PlanTable PlanTable::part(std::string_view key) {
    static const toml::table empty;
    known.push_back(key);
    const toml::node* node = source->table->get(key);
    if (node && !node->is_table())
        source->refuse(*node, quoted(key) + " as a table, [" + std::string(key) + "]");
    return PlanTable(source->inner(node ? node->as_table() : &empty));
}

std::vector<PlanTable> PlanTable::parts(std::string_view key) {
    known.push_back(key);
    const toml::node* node = source->table->get(key);
    if (!node)
        return {};
    const std::string expected = quoted(key) + " as tables, [[" + std::string(key) + "]]";
    if (!node->is_array())
        source->refuse(*node, expected);
    std::vector<PlanTable> found;
    for (const toml::node& element : *node->as_array()) {
        if (!element.is_table())
            source->refuse(element, expected);
        found.push_back(PlanTable(source->inner(element.as_table())));
    }
    return found;
}

int PlanTable::lineOf(std::string_view key) const {
    const toml::node* node = source->table->get(key);
    return node ? Source::lineOf(*node) : 0;
}

void PlanTable::refuseOtherKeys() const {
    for (const auto& [key, node] : *source->table) {
        if (std::find(known.begin(), known.end(), key.str()) != known.end())
            continue;
        std::string expected = "one of";
        for (const std::string_view name : known)
            expected += (name == known.front() ? " " : ", ") + std::string(name);
        source->refuse(node, expected + ", not " + quoted(key.str()));
    }
}

void PlanTable::need(std::string_view key) const {
    if (!source->table->contains(key))
        refuse(quoted(key) + " as well");
}

void PlanTable::needBothOrNone(std::string_view first, std::string_view second) const {
    if (source->table->contains(first))
        need(second);
    if (source->table->contains(second))
        need(first);
}

void PlanTable::refuse(const std::string& expected) const {
    source->refuse(*source->table, expected);
}

} // namespace tarnel
