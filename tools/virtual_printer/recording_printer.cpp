#include "recording_printer.h"

namespace virtual_printer
{

class RecordingPrinter::Recorder : public Job
{
public:
    Recorder(RecordingPrinter& printer, std::size_t index) : printer_(printer), index_(index) {}

    void received(std::string_view bytes) override
    {
        change([bytes](Record& record) {
            record.lastByte = std::chrono::steady_clock::now();
            record.firstByte = record.bytes.empty() ? record.lastByte : record.firstByte;
            record.bytes.append(bytes);
            ++record.reads;
        });
    }
    void command(const Command& command) override
    {
        change([&command](Record& record) { record.commands.push_back(command); });
    }
    void ended() override
    {
        change([](Record& record) { record.ended = true; });
    }

private:
    template <typename Change> void change(Change apply)
    {
        const std::lock_guard<std::mutex> lock(printer_.mutex_);
        apply(printer_.records_[index_]);
        printer_.changed_.notify_all();
    }

    RecordingPrinter& printer_;
    std::size_t index_;
};

RecordingPrinter::RecordingPrinter(const ServerSettings& settings)
    : server_(settings,
              [this](int number) {
                  const std::lock_guard<std::mutex> lock(mutex_);
                  records_.emplace_back();
                  changed_.notify_all();
                  return std::make_unique<Recorder>(*this, static_cast<std::size_t>(number - 1));
              }),
      thread_([this] { server_.run(); })
{
}

RecordingPrinter::~RecordingPrinter()
{
    server_.stop();
    thread_.join();
}

RecordingPrinter::Records RecordingPrinter::records() const
{
    const std::lock_guard<std::mutex> lock(mutex_);
    return records_;
}

bool RecordingPrinter::waitUntil(const std::function<bool(const Records&)>& condition,
                                 std::chrono::milliseconds timeout) const
{
    std::unique_lock<std::mutex> lock(mutex_);
    return changed_.wait_for(lock, timeout, [&] { return condition(records_); });
}

std::string RecordingPrinter::bytesOfJob(std::size_t index) const
{
    waitUntil([index](const Records& all) { return all.size() > index && all[index].ended; });
    const Records all = records();
    return index < all.size() ? all[index].bytes : std::string();
}

} // namespace virtual_printer
