#include "authoring/built_question.h"

#include "persistence/session_file.h"

namespace tarnel {

BuiltQuestion questionOf(const CourseSource& source, const FlownSituation& flown) {
    return {*source.kind,
            flown,
            {source.questions->ask(flown, Language::german),
             source.questions->ask(flown, Language::english)},
            readSession(flown.session).samples};
}

} // namespace tarnel
