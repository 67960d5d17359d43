// An endpoint over any of Asio's streams.
#pragma once

#include "endpoint.h"

#include <asio/bind_cancellation_slot.hpp>
#include <asio/buffer.hpp>
#include <asio/cancellation_signal.hpp>

#include <utility>

namespace q7
{

template <typename Stream> class AsioEndpoint : public Endpoint
{
public:
    explicit AsioEndpoint(Stream stream) : m_stream(std::move(stream)) {}

    void startWrite(std::string_view bytes, IoHandler handler) override
    {
        m_stream.async_write_some(
            asio::buffer(bytes.data(), bytes.size()),
            asio::bind_cancellation_slot(m_endWrite.slot(), std::move(handler)));
    }

    void cancelWrite() override { m_endWrite.emit(asio::cancellation_type::all); }

    void startRead(char* buffer, std::size_t size, IoHandler handler) override
    {
        m_stream.async_read_some(asio::buffer(buffer, size), std::move(handler));
    }

    void cancelAll() override
    {
        std::error_code ignored;
        m_stream.cancel(ignored);
    }

    std::error_code close() override
    {
        std::error_code error;
        m_stream.close(error);
        return error;
    }

protected:
    Stream m_stream;

private:
    asio::cancellation_signal m_endWrite;
};

} // namespace q7
