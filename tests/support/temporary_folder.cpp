#include "temporary_folder.h"

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <regex>
#include <sstream>
#include <stdexcept>

namespace q7test
{

TemporaryFolder::TemporaryFolder()
{
    std::string pattern = std::filesystem::temp_directory_path() / "q7-test-XXXXXX";
    if (mkdtemp(pattern.data()) == nullptr)
        throw std::runtime_error("no temporary folder");
    m_path = pattern;
}

TemporaryFolder::~TemporaryFolder()
{
    std::error_code ignored;
    std::filesystem::remove_all(m_path, ignored);
}

void TemporaryFolder::write(const std::string& name, const std::string& content) const
{
    std::ofstream(m_path + '/' + name, std::ios::binary) << content;
}

std::string TemporaryFolder::read(const std::string& name) const
{
    std::ostringstream content;
    content << std::ifstream(m_path + '/' + name, std::ios::binary).rdbuf();
    return content.str();
}

DataFolder::DataFolder(Log log)
{
    setenv("Q7_DATA_PATH", (path() + '/').c_str(), 1);
    if (log == Log::On)
        write("log_q7.txt", "");
}

DataFolder::~DataFolder()
{
    unsetenv("Q7_DATA_PATH");
}

void DataFolder::stopLog()
{
    m_taken = 0;
    std::filesystem::remove(path() + "/log_q7.txt");
}

std::vector<std::string> DataFolder::takeLog()
{
    static const std::regex layout(R"(\[\d\d\.\d\d\.\d{4}-\d\d:\d\d:\d\d\.\d{3}\]\.{5}\[(?:)"
                                   R"((COMANDOSENVIADOS)\]\.{5}\[|(FUNCAO)\]\.{15}\[|)"
                                   R"((INFO)\]\.{16}\[|(LOGINDEFINIDO)\]\.{8}\[))");
    const std::string text = read("log_q7.txt").substr(m_taken);
    m_taken += text.size();
    std::vector<std::string> lines;
    for (std::size_t begin = 0; begin + 1 < text.size();) {
        // A message may hold line feeds of its own: a line ends where the next one begins.
        const std::size_t end = std::min(text.find("]\n[", begin), text.size() - 2);
        const std::string line = text.substr(begin, end - begin);
        std::smatch match;
        if (text.compare(end, 2, "]\n") == 0 &&
            std::regex_search(line, match, layout, std::regex_constants::match_continuous)) {
            std::string kind;
            for (std::size_t group = 1; group < match.size(); ++group)
                kind += match.str(group);
            lines.push_back(kind + ' ' + match.suffix().str());
        } else {
            lines.push_back("MALFORMED " + line);
        }
        begin = end + 2;
    }
    return lines;
}

} // namespace q7test
