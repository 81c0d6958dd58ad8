#pragma once

#include "log/sqlite_log.h"
#include "support/temporary_folder.h"

#include <QCoreApplication>
#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace tarnel {

/// A log in a folder of its own.
class LogTest : public testing::Test {
  protected:
    LogTest() {
        static int count = 1;
        static char name[] = "log_tests";
        static char* words[] = {name, nullptr};
        static const QCoreApplication application(count, words);
    }

    static AnsweredRow answer(std::int64_t question, std::int64_t asked, int row, bool right) {
        AnsweredRow answered;
        answered.when = asked + 1000 * (row + 1);
        answered.asked = asked;
        answered.exercise = ExerciseType::qdm;
        answered.question = question;
        answered.row = row;
        answered.spot = Text::spotQdmTurn;
        answered.right = right;
        answered.milliseconds = 1000;
        answered.rows = 2;
        answered.given = "Übung <090>";
        answered.answer = "270";
        return answered;
    }
    static std::size_t answersIn(TrainingLog& log) {
        std::size_t count = 0;
        log.eachAnswer([&](const AnswerFacts&) { ++count; });
        return count;
    }
    std::string path() const { return (folder.at / "training").string(); }

    const TemporaryFolder folder;
};

} // namespace tarnel
