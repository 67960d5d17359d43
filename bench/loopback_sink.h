// A printer at the other end of a loopback connection that takes everything and answers only what
// opening asks.
#pragma once

#include <thread>

class LoopbackSink
{
public:
    LoopbackSink();
    ~LoopbackSink();
    LoopbackSink(const LoopbackSink&) = delete;
    LoopbackSink& operator=(const LoopbackSink&) = delete;

    int port() const { return m_port; }

private:
    void serve();

    int m_listener;
    int m_port = 0;
    std::thread m_thread;
};
