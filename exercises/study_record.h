#pragma once

#include <array>
#include <string>

namespace tarnel {

/// The columns of a question. What a column holds depends on the exercise.
enum class StudyColumn {
    qa,
    qb,
    qc,
    qd,
    qe,
    qf,
    qg,
    qh,
    qi,
    qj,
    qk,
    ql,
    ans1,
    ans2,
    ans3,
    ans4,
    ans5,
    ans6,
    ans7,
    sessionName, ///< the file of the question's session, relative to the folder of the sessions
};

/// One question of a study file: texts in UTF-8 by column, empty where the file has none.
struct StudyRecord {
    std::string& operator[](StudyColumn column) {
        return columns[static_cast<std::size_t>(column)];
    }
    const std::string& operator[](StudyColumn column) const {
        return columns[static_cast<std::size_t>(column)];
    }
    bool operator==(const StudyRecord&) const = default;

    std::array<std::string, static_cast<std::size_t>(StudyColumn::sessionName) + 1> columns;
};

} // namespace tarnel
