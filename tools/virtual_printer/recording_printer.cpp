#include "recording_printer.h"

namespace virtual_printer
{

class RecordingPrinter::Recorder : public Job
{
public:
    Recorder(RecordingPrinter& printer, std::size_t index) : m_printer(printer), m_index(index) {}

    void received(std::string_view bytes) override
    {
        change([this, bytes](Record& record) {
            record.lastByte = std::chrono::steady_clock::now();
            record.firstByte = record.bytes.empty() ? record.lastByte : record.firstByte;
            append(record.bytes, bytes);
        });
    }
    void command(const Command& /*command*/) override {}
    void sent(std::string_view bytes) override
    {
        change([this, bytes](Record& record) { append(record.sent, bytes); });
    }
    void faulted() override
    {
        change([](Record& record) { record.faulted = true; });
    }
    void ended() override
    {
        change([](Record& record) { record.ended = true; });
    }

private:
    void append(std::string& kept, std::string_view bytes) const
    {
        if (m_printer.m_keep == Keep::All) {
            kept.append(bytes);
        }
    }
    template <typename Change> void change(Change apply)
    {
        const std::lock_guard<std::mutex> lock(m_printer.m_mutex);
        apply(m_printer.m_records[m_index]);
        m_printer.m_changed.notify_all();
    }

    RecordingPrinter& m_printer;
    std::size_t m_index;
};

RecordingPrinter::RecordingPrinter(const ServerSettings& settings, Keep keep)
    : m_keep(keep),
      m_server(settings,
               [this](int, const Model&) {
                   const std::lock_guard<std::mutex> lock(m_mutex);
                   if (m_keep == Keep::Nothing) {
                       m_records.clear();
                   }
                   m_records.emplace_back();
                   m_changed.notify_all();
                   return std::make_unique<Recorder>(*this, m_records.size() - 1);
               }),
      m_thread([this] { m_server.run(); })
{
}

RecordingPrinter::~RecordingPrinter()
{
    m_server.stop();
    m_thread.join();
}

RecordingPrinter::Records RecordingPrinter::records() const
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    return m_records;
}

bool RecordingPrinter::waitUntil(const std::function<bool(const Records&)>& condition,
                                 std::chrono::milliseconds timeout) const
{
    std::unique_lock<std::mutex> lock(m_mutex);
    return m_changed.wait_for(lock, timeout, [&] { return condition(m_records); });
}

std::string RecordingPrinter::bytesOfJob(std::size_t index) const
{
    waitUntil([index](const Records& all) { return all.size() > index && all[index].ended; });
    const Records all = records();
    return index < all.size() ? all[index].bytes : std::string();
}

} // namespace virtual_printer
