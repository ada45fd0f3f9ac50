#include "tools/diarykit/commands/print_findings.h"

#include <cstdio>
#include <nlohmann/json.hpp>

#include "tools/diarykit/commands/kit.h"

int PrintFindings(const std::vector<Finding>& findings, bool asJson) {
    if (asJson) {
        auto list = nlohmann::ordered_json::array();
        for (const Finding& finding : findings) {
            list.push_back(
                {{"file", finding.file}, {"line", finding.line}, {"text", finding.text}});
        }
        std::printf("%s\n", list.dump(1).c_str());
    } else {
        for (const Finding& finding : findings) {
            const std::string line = finding.line ? ":" + std::to_string(finding.line) : "";
            std::printf("%s%s: %s\n", finding.file.c_str(), line.c_str(), finding.text.c_str());
        }
    }
    return findings.empty() ? kFine : kFound;
}
