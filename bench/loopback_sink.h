// A printer at the other end of a loopback connection that takes everything and answers only what
// opening asks.
#pragma once

#include <atomic>
#include <cstddef>
#include <thread>

class LoopbackSink
{
public:
    LoopbackSink();
    ~LoopbackSink();
    LoopbackSink(const LoopbackSink&) = delete;
    LoopbackSink& operator=(const LoopbackSink&) = delete;

    int port() const { return m_port; }
    std::size_t received() const { return m_received; }

private:
    void serve();

    int m_listener;
    int m_port = 0;
    std::atomic<std::size_t> m_received{0};
    std::thread m_thread;
};
