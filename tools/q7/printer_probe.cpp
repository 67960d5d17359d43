#include "printer_probe.h"

#include "devices.h"
#include "system_name.h"
#include "text.h"

#include <array>
#include <asio.hpp>

namespace q7tool
{
namespace
{

using Outcome = ProbeResult::Outcome;
using std::chrono::milliseconds;
using std::chrono::steady_clock;

constexpr milliseconds connectLimit(3000);
constexpr milliseconds replyLimit(6000);
constexpr milliseconds dueLimit(2000);
constexpr milliseconds replyGap(60); // a serial printer's name comes byte by byte
constexpr std::size_t longestReply = 200;

ProbeResult ended(Outcome outcome)
{
    ProbeResult result;
    result.outcome = outcome;
    return result;
}

ProbeResult failed(const std::error_code& error)
{
    ProbeResult result = ended(Outcome::Failed);
    result.detail = systemMessage(error.value());
    return result;
}

std::string queryFor(const std::string& model)
{
    return model == "TESMO" ? "~HI" : "\x1D\x49\x43"; // GS I 67
}

std::string nameIn(const std::string& reply)
{
    std::string name;
    for (const char c : reply.substr(0, reply.find('\0')))
        if (static_cast<unsigned char>(c) >= ' ')
            name += c;
    return startsWith(name, "_") ? name.substr(1) : name;
}

/** Gathers an answer that begins within that time. */
template <typename Stream>
ProbeResult gather(asio::io_context& context, Stream& link, milliseconds limit)
{
    const auto begun = steady_clock::now();
    ProbeResult result = ended(Outcome::Silent);
    std::string reply;
    while (reply.size() < longestReply) {
        std::array<char, longestReply> piece = {};
        std::size_t count = 0;
        link.async_read_some(asio::buffer(piece),
                             [&](const std::error_code&, std::size_t read) { count = read; });
        context.restart();
        context.run_for(reply.empty() ? limit : replyGap);
        if (!context.stopped()) {
            std::error_code ignored;
            link.cancel(ignored);
            context.run();
        }
        if (count == 0)
            break;
        if (reply.empty())
            result.replyAfter =
                std::chrono::duration_cast<milliseconds>(steady_clock::now() - begun);
        reply.append(piece.data(), count);
        result.outcome = Outcome::Answered;
    }
    result.reply = nameIn(reply);
    return result;
}

/** Asks over a link that is open. */
template <typename Stream>
ProbeResult ask(asio::io_context& context, Stream& link, const std::string& query)
{
    std::error_code error;
    asio::write(link, asio::buffer(query), error);
    return error ? failed(error) : gather(context, link, replyLimit);
}

Outcome outcomeOf(const std::error_code& error)
{
    if (error == asio::error::connection_refused)
        return Outcome::Refused;
    if (error == asio::error::host_unreachable || error == asio::error::network_unreachable ||
        error == asio::error::network_down)
        return Outcome::Unreachable;
    return error == asio::error::timed_out ? Outcome::TimedOut : Outcome::Failed;
}

ProbeResult probeNetwork(const PrinterAddress& address)
{
    asio::io_context context;
    std::error_code error;
    asio::ip::tcp::resolver resolver(context);
    const auto places = resolver.resolve(address.place, std::to_string(address.number),
                                         asio::ip::tcp::resolver::numeric_service, error);
    if (error)
        return ended(Outcome::HostUnknown);
    asio::ip::tcp::socket socket(context);
    error = asio::error::timed_out;
    asio::async_connect(
        socket, places,
        [&](const std::error_code& outcome, const asio::ip::tcp::endpoint&) { error = outcome; });
    context.run_for(connectLimit);
    if (!context.stopped())
        return ended(Outcome::TimedOut);
    if (error) {
        ProbeResult result = failed(error);
        result.outcome = outcomeOf(error);
        return result;
    }
    return ask(context, socket, queryFor(address.model));
}

ProbeResult probeSerial(const PrinterAddress& address, bool answerIsDue)
{
    asio::io_context context;
    asio::serial_port port(context);
    std::error_code error;
    port.open(serialDevicePath(address.place), error);
    if (error == std::errc::no_such_file_or_directory || error == std::errc::no_such_device)
        return ended(Outcome::Missing);
    if (error == std::errc::permission_denied || error == std::errc::device_or_resource_busy)
        return ended(Outcome::Busy);
    if (error)
        return failed(error);
    port.set_option(asio::serial_port::baud_rate(static_cast<unsigned>(address.number)), error);
    port.set_option(asio::serial_port::character_size(8), error);
    port.set_option(asio::serial_port::parity(asio::serial_port::parity::none), error);
    port.set_option(asio::serial_port::stop_bits(asio::serial_port::stop_bits::one), error);
    port.set_option(asio::serial_port::flow_control(asio::serial_port::flow_control::none), error);
    if (answerIsDue) {
        ProbeResult late = gather(context, port, dueLimit);
        late.replyAfter += libraryPatience;
        if (late.outcome == Outcome::Answered)
            return late;
    }
    return ask(context, port, queryFor(address.model));
}

} // namespace

ProbeResult probePrinter(const PrinterAddress& address, bool answerIsDue)
{
    return address.kind == Q7_CONNECTION_TCP ? probeNetwork(address)
                                             : probeSerial(address, answerIsDue);
}

} // namespace q7tool
