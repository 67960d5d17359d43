// One end of a link, as the printer sees it: bytes come, bytes go, the far end vanishes.
#pragma once

#include <asio/error.hpp>
#include <asio/ip/tcp.hpp>

#include <functional>
#include <memory>
#include <string_view>

namespace virtual_printer
{

class Line
{
public:
    virtual ~Line() = default;
    Line() = default;
    Line(const Line&) = delete;
    Line& operator=(const Line&) = delete;

    /** Calls ready once there is something to read, or nobody at the far end any more; never when
     *  the line is closed before. */
    virtual void awaitReadable(std::function<void()> ready) = 0;
    /** Reads what is there, without waiting. error: would_block when nothing is. */
    virtual std::size_t read(char* buffer, std::size_t size, std::error_code& error) = 0;
    /** Writes what finds room, without waiting; returns how much. */
    virtual std::size_t write(std::string_view bytes) = 0;

    enum class Ending { Reset, Close, HalfClose };
    /** The printer vanishes; half-closed it still reads, where the line knows that. */
    virtual void vanish(Ending how) = 0;
    virtual void close() = 0;
    /** Whether another may come to the far end when one has left. */
    virtual bool staysOpen() const = 0;
};

/** What Asio's non-blocking streams have in common. */
template <typename Stream> class LineOver : public Line
{
public:
    explicit LineOver(Stream stream) : m_stream(std::move(stream)) { m_stream.non_blocking(true); }

    void awaitReadable(std::function<void()> ready) override
    {
        m_stream.async_wait(Stream::wait_read, [ready = std::move(ready)](std::error_code error) {
            if (error != asio::error::operation_aborted) {
                ready();
            }
        });
    }
    std::size_t read(char* buffer, std::size_t size, std::error_code& error) override
    {
        return m_stream.read_some(asio::buffer(buffer, size), error);
    }
    std::size_t write(std::string_view bytes) override
    {
        std::error_code lost;
        return m_stream.write_some(asio::buffer(bytes.data(), bytes.size()), lost);
    }
    void vanish(Ending how) override
    {
        if (how != Ending::HalfClose) {
            close();
        }
    }
    void close() override
    {
        std::error_code closedAlready;
        m_stream.close(closedAlready);
    }

protected:
    Stream m_stream;
};

} // namespace virtual_printer
