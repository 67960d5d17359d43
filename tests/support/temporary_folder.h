// The library's data folder, made for one test, and the log that is written there.
#pragma once

#include <string>
#include <vector>

namespace q7test
{

/** A folder of its own in the place for temporary files; removed at the end. */
class TemporaryFolder
{
public:
    TemporaryFolder();
    ~TemporaryFolder();
    TemporaryFolder(const TemporaryFolder&) = delete;
    TemporaryFolder& operator=(const TemporaryFolder&) = delete;

    const std::string& path() const { return m_path; } // without a separator at its end
    void write(const std::string& name, const std::string& content) const;
    std::string read(const std::string& name) const;

private:
    std::string m_path;
};

/** Names a temporary folder in Q7_DATA_PATH for its life. */
class DataFolder : public TemporaryFolder
{
public:
    enum class Log { Off, On };

    explicit DataFolder(Log log = Log::On);
    ~DataFolder();

    /** The lines since the last call, as kind and message: "FUNCAO Corte. PARAMETROS:3",
     *  "COMANDOSENVIADOS 1B40", "INFO ...". A line of another layout comes as "MALFORMED ...". */
    std::vector<std::string> takeLog();

    /** Takes the log file away, which ends the log. */
    void stopLog();

private:
    std::size_t m_taken = 0;
};

} // namespace q7test
