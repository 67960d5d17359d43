// The virtual printer's page: any bytes as a browser's request.

#include "printer_page.h"

#include <cstdlib>
#include <netinet/in.h>
#include <sys/socket.h>
#include <thread>
#include <unistd.h>

namespace
{

/** What the page answers to a request, as far as it comes without a pause. */
std::string answerTo(std::uint16_t port, const std::string& request, int patienceMs)
{
    const int connection = ::socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC, 0);
    sockaddr_in address = {};
    address.sin_family = AF_INET;
    address.sin_port = htons(port);
    address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
    // Some answers go on as long as somebody listens, and a request may never be whole.
    const timeval patience = {patienceMs / 1000, patienceMs % 1000 * 1000};
    ::setsockopt(connection, SOL_SOCKET, SO_RCVTIMEO, &patience, sizeof patience);
    std::string answer;
    if (::connect(connection, reinterpret_cast<sockaddr*>(&address), sizeof address) == 0) {
        static_cast<void>(!::send(connection, request.data(), request.size(), MSG_NOSIGNAL));
        char buffer[65536];
        for (ssize_t count = 0; (count = ::recv(connection, buffer, sizeof buffer, 0)) > 0;)
            answer.append(buffer, static_cast<std::size_t>(count));
    }
    ::close(connection);
    return answer;
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
    answerTo(port, request, 20);
    // It serves on.
    if (answerTo(port, "GET / HTTP/1.1\r\nHost: " + host + "\r\nConnection: close\r\n\r\n", 10'000)
            .find("200") == std::string::npos)
        std::abort();
    return 0;
}
