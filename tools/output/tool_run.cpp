#include "tools/output/tool_run.h"

#include "core/run_time_error.h"
#include "flights/plan_error.h"
#include "platform/process.h"
#include "strings/cause_text.h"
#include "strings/string_table.h"
#include "tools/output/output_file.h"

#include <filesystem>
#include <iostream>

namespace tarnel {

ExitStatus runTool(const std::string& tool, const std::string& usage,
                   const std::function<ExitStatus()>& work) {
    const auto failed = [&tool](ExitStatus status, std::string_view reason) {
        std::cerr << tool << ": " << reason << '\n';
        return status;
    };
    makeFileSizeLimitAnError();
    try {
        return work();
    } catch (const UsageError& error) {
        failed(usageIsWrong, error.what());
        std::cerr << usage;
        return usageIsWrong;
    } catch (const PlanError& error) {
        std::cerr << error.what() << '\n'; // begins with the file, and not the tool
        return inputIsWrong;
    } catch (const OutputError& error) {
        return failed(outputFailed, error.what());
    } catch (const RunTimeError& error) {
        return failed(outputFailed, causeText(englishTable(), error.cause()));
    } catch (const std::filesystem::filesystem_error& error) {
        return failed(outputFailed, error.what());
    }
}

} // namespace tarnel
