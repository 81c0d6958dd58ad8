#include "flights/plan_error.h"

#include "core/number_text.h"

namespace tarnel {

namespace {

std::string messageOf(const std::string& file, int line, const std::string& expected) {
    const std::string place = line > 0 ? ":" + numberText(std::int64_t{line}) : std::string();
    return file + place + ": expected " + expected;
}

} // namespace

PlanError::PlanError(const std::string& file, int line, const std::string& expected)
    : std::runtime_error(messageOf(file, line, expected)),
      wrongFile(file),
      wrongLine(line),
      expectation(expected) {}

} // namespace tarnel
