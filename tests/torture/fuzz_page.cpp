// The virtual printer's page: any bytes as a browser's request.

#include "printer_page.h"

#include <asio/ip/tcp.hpp>
#include <cstdlib>
#include <thread>

using namespace std::chrono_literals;

namespace
{

/** What the page answers to a request within that time: some answers go on as long as somebody listens,
 *  and a request may never be whole. */
std::string answerTo(std::uint16_t port, const std::string& request,
                     std::chrono::milliseconds patience)
{
    asio::ip::tcp::iostream connection;
    connection.expires_after(patience);
    connection.connect(asio::ip::tcp::endpoint(asio::ip::address_v4::loopback(), port));
    connection << request << std::flush;
    return {std::istreambuf_iterator<char>(connection), {}};
}

printer_page::PrinterPage& servedPage()
{
    static auto& page = *[] {
        printer_page::PrinterPageSettings settings;
        settings.pagePort = 0;
        auto* made = new printer_page::PrinterPage(settings);
        std::thread([made] { made->run(); }).detach();
        return made;
    }();
    return page;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const std::uint16_t port = servedPage().pagePort();
    const std::string host = "127.0.0.1:" + std::to_string(port);
    // Half of the inputs are whole requests, the others what stands behind a sound beginning.
    std::string request(reinterpret_cast<const char*>(data), size);
    if (size > 0 && data[0] % 2 == 0)
        request =
            "GET /" + request + " HTTP/1.1\r\nHost: " + host + "\r\nConnection: close\r\n\r\n";
    answerTo(port, request, 20ms);
    // It serves on.
    if (answerTo(port, "GET / HTTP/1.1\r\nHost: " + host + "\r\nConnection: close\r\n\r\n", 10s)
            .find("200") == std::string::npos)
        std::abort();
    return 0;
}
