#include "export_fixture.h"

namespace q7test
{

std::vector<std::string> logOf(const Transcript& transcript)
{
    constexpr char digits[] = "0123456789ABCDEF";
    std::vector<std::string> lines;
    for (const std::string& line : transcript) {
        if (line.front() != '>') {
            lines.push_back("FUNCAO " + line);
            continue;
        }
        std::string sent = "COMANDOSENVIADOS ";
        for (const char c : encoded({line.substr(1)}))
            (sent += digits[static_cast<unsigned char>(c) / 16]) += digits[c & 15];
        lines.push_back(sent);
    }
    return lines;
}

void ExportTest::openTcp(const PrinterScript& script)
{
    farEnd = std::make_unique<TcpPrinter>(script);
    open(script.model);
}

void ExportTest::openSerial(const PrinterScript& script)
{
    farEnd = std::make_unique<PtyPrinter>(script);
    open(script.model);
}

void ExportTest::open(const std::string& model)
{
    m_taken = 0;
    ASSERT_EQ(0, openPatientlyOn(*farEnd, model));
    takeSent();
    data.takeLog();
}

std::string ExportTest::takeSent()
{
    const std::string mark = "\x07<mark>\x07";
    DirectIO(mark.data(), static_cast<int>(mark.size()), nullptr, nullptr);
    std::string bytes;
    const auto hasMark = [&](const FakePrinter::Records& all) {
        bytes = all.empty() ? std::string() : all.back().bytes.substr(m_taken);
        return bytes.find(mark) != std::string::npos;
    };
    EXPECT_TRUE(farEnd->waitUntil(hasMark)) << "the printer never got the mark";
    m_taken += bytes.size();
    return bytes.substr(0, bytes.find(mark));
}

} // namespace q7test
