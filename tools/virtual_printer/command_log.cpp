#include "command_log.h"

#include <string_view>

namespace virtual_printer
{
namespace
{

int hexValue(char digit)
{
    if (digit >= '0' && digit <= '9') {
        return digit - '0';
    }
    const char upper = static_cast<char>(digit & ~0x20);
    return upper >= 'A' && upper <= 'F' ? upper - 'A' + 10 : -1;
}

/** What follows the marker on the line; nothing when the line lacks it. */
std::string_view behind(std::string_view line, std::string_view marker)
{
    const std::size_t at = line.find(marker);
    return at == std::string_view::npos ? std::string_view() : line.substr(at + marker.size());
}

/** The model from "3,VANTA,192.168.0.10,9100]". */
std::string modelOf(std::string_view parameters)
{
    const std::size_t from = parameters.find(',') + 1;
    const std::size_t to = parameters.find(',', from);
    return from == 0 || to == std::string_view::npos
               ? std::string()
               : std::string(parameters.substr(from, to - from));
}

} // namespace

std::vector<LoggedJob> readCommandLog(std::istream& log, std::vector<int>& badLines)
{
    std::vector<LoggedJob> jobs(1);
    std::string line;
    for (int number = 1; std::getline(log, line); ++number) {
        if (const auto opened = behind(line, "[AbreConexaoImpressora. PARAMETROS:");
            !opened.empty()) {
            if (!jobs.back().bytes.empty()) {
                jobs.emplace_back();
            }
            jobs.back().model = modelOf(opened);
        }
        const std::string_view sent = behind(line, "[COMANDOSENVIADOS].....[");
        std::size_t at = 0;
        while (at + 1 < sent.size() && hexValue(sent[at]) >= 0 && hexValue(sent[at + 1]) >= 0) {
            jobs.back().bytes +=
                static_cast<char>(hexValue(sent[at]) * 16 + hexValue(sent[at + 1]));
            at += 2;
        }
        if (!sent.empty() && (at >= sent.size() || sent[at] != ']')) {
            badLines.push_back(number);
        }
    }
    if (jobs.back().bytes.empty()) {
        jobs.pop_back();
    }
    return jobs;
}

} // namespace virtual_printer
