// The latest receipts, kept in memory for whoever looks.
#pragma once

#include <chrono>
#include <condition_variable>
#include <cstdint>
#include <map>
#include <memory>
#include <mutex>
#include <string>
#include <vector>

namespace printer_page
{

/** A receipt, as far as it is printed. */
struct Receipt {
    int id = 0;
    std::string model;
    std::chrono::system_clock::time_point begun;
    bool finished = false;             // cut, or its connection has ended
    bool shortened = false;            // longer than what is kept of one receipt
    std::vector<std::string> pictures; // PNG, one below the other
    std::string text;
    std::string commands; // a line each
    std::string bytes;    // as the printer was sent them
    // What the printer has to say of it: what happened at the paper or is missing there, and what
    // else its bytes do not show.
    std::vector<std::string> notes;
    std::vector<std::string> remarks;

    std::size_t size() const;
};

/** Keeps the latest receipts within bounds; safe to use from any thread. */
class ReceiptShelf
{
public:
    struct Limits {
        std::size_t receipts = 200;
        std::size_t bytes = std::size_t{64} << 20U; // of all receipts together
    };
    using Version = std::uint64_t;
    using Kept = std::shared_ptr<const Receipt>;

    explicit ReceiptShelf(const Limits& limits) : m_limits(limits) {}

    /** A number for a receipt that begins: 1, 2, ... */
    int takeNumber();
    /** Keeps the receipt in place of an earlier state of it. The oldest go when there are too many,
     *  or they are too large; a receipt that has gone does not come back. */
    void keep(Receipt receipt);
    void clear();

    /** Null when it is not, or no longer, kept. */
    Kept find(int id) const;

    struct News {
        Version version = 0;
        int oldestId = 0;          // no receipt before this is kept
        std::vector<Kept> changed; // in the order of their numbers
    };
    /** What has changed after that version (0: everything kept). Waits for news, wake() or the end
     *  of that time. */
    News newsSince(Version version, std::chrono::milliseconds wait) const;
    /** Ends every wait. */
    void wake();

    std::size_t capacity() const { return m_limits.receipts; }

private:
    struct Place {
        Kept receipt;
        Version version;
    };
    void dropOldest();

    Limits m_limits;
    mutable std::mutex m_mutex;
    mutable std::condition_variable m_changed;
    std::map<int, Place> m_places;
    std::size_t m_bytes = 0;
    Version m_version = 1;
    std::uint64_t m_wakes = 0;
    int m_lastNumber = 0;
    int m_oldestId = 1;
};

} // namespace printer_page
