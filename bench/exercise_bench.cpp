#include "cpu_seconds.h"
#include "shell/application_folder.h"
#include "shell/form_1.h"
#include "silent_world.h"
#include "strings/string_table.h"

#include <algorithm>
#include <cstdio>
#include <vector>

namespace {

using namespace tarnel;

constexpr double most = 1.3; ///< times the load of the session alone
constexpr int rounds = 400;

double median(std::vector<double> values) {
    std::sort(values.begin(), values.end());
    return values[values.size() / 2];
}

} // namespace

/// From "Weiter" to the next question with its session, a wrong answer counted on the way, against
/// loading that session alone; both until its first sample is on the panel.
int main() {
    SilentWorld world;
    Form1 form(germanTable(), world, applicationFolder());
    const auto& items = form.exerciseMenu.exercises;
    (*std::ranges::find(items, "qdm", [](const auto& item) { return item->name(); }))->click();
    form.Timer1();
    ExercisePanel& panel = *form.QAform1.activePanel();
    panel.randomBox.set(1);
    std::vector<double> next;
    std::vector<double> load;
    for (int i = 0; i < rounds; ++i) {
        panel.rows[0]->options[0]->click();
        double start = cpuSeconds();
        panel.nextButton.click();
        form.Timer1();
        next.push_back(cpuSeconds() - start);
        start = cpuSeconds();
        form.UserControl11.loadByName(form.UserControl11.c_SessionFileName);
        form.Timer1(); // which shows the first sample on the panel
        load.push_back(cpuSeconds() - start);
    }
    const double ratio = median(next) / median(load);
    std::printf("the next question, against loading its session of %d samples: %.3f ms, %.2f times"
                " (at most %.1f) %s\n",
                int{form.UserControl11.c_TraceBufferMax}, median(next) * 1e3, ratio, most,
                ratio <= most ? "" : "MISSED");
    return ratio <= most ? 0 : 1;
}
