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

std::string bytesOf(const Transcript& transcript)
{
    std::string bytes;
    for (const std::string& line : transcript)
        if (line.front() == '>')
            bytes += encoded({line.substr(1)});
    return bytes;
}

void ExportTest::openTcp(const PrinterScript& script)
{
    m_taken = 0;
    tcp = std::make_unique<TcpPrinter>(script);
    ASSERT_EQ(0, AbreConexaoImpressora(3, script.model.c_str(), "127.0.0.1", tcp->port()));
    takeSent();
    data.takeLog();
}

void ExportTest::openSerial(const PrinterScript& script)
{
    m_taken = 0;
    serial = std::make_unique<PtyPrinter>(script);
    ASSERT_EQ(0, AbreConexaoImpressora(2, script.model.c_str(), serial->device().c_str(), 115200));
    takeSent();
    data.takeLog();
}

std::string ExportTest::takeSent()
{
    const std::string mark = "\x07<mark>\x07";
    DirectIO(mark.data(), static_cast<int>(mark.size()), nullptr, nullptr);
    FakePrinter& printer = tcp ? static_cast<FakePrinter&>(*tcp) : *serial;
    const auto hasMark = [&](const std::vector<Received>& all) {
        return !all.empty() && all.back().bytes.find(mark, m_taken) != std::string::npos;
    };
    EXPECT_TRUE(printer.waitUntil(hasMark)) << "the printer never got the mark";
    const std::string bytes = printer.bytes().substr(m_taken);
    m_taken += bytes.size();
    return bytes.substr(0, bytes.find(mark));
}

} // namespace q7test
