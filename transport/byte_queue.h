// Bytes on their way: appended at the end, taken from the front.
#pragma once

#include <string>
#include <string_view>

namespace q7
{

class ByteQueue
{
public:
    std::size_t size() const { return m_bytes.size() - m_taken; }
    bool isEmpty() const { return size() == 0; }
    std::string_view front() const { return std::string_view(m_bytes).substr(m_taken); }

    void append(std::string_view bytes) { m_bytes.append(bytes); }
    void takeBack(std::size_t count) { m_bytes.resize(m_bytes.size() - count); }
    void drop(std::size_t count)
    {
        m_taken += count;
        if (isEmpty())
            clear();
        else if (m_taken > m_bytes.size() / 2) {
            m_bytes.erase(0, m_taken);
            m_taken = 0;
        }
    }
    void clear()
    {
        constexpr std::size_t keptCapacity = 1 << 20;
        m_taken = 0;
        if (m_bytes.capacity() > keptCapacity)
            m_bytes = std::string();
        m_bytes.clear();
    }

private:
    std::string m_bytes;
    std::size_t m_taken = 0;
};

} // namespace q7
