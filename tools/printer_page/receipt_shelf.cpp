#include "receipt_shelf.h"

#include <algorithm>

namespace printer_page
{

std::size_t Receipt::size() const
{
    std::size_t all = sizeof(Receipt) + text.size() + commands.size() + bytes.size();
    for (const auto* texts : {&pictures, &notes, &remarks}) {
        for (const std::string& one : *texts) {
            all += one.size();
        }
    }
    return all;
}

int ReceiptShelf::takeNumber()
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    return ++m_lastNumber;
}

void ReceiptShelf::keep(Receipt receipt)
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    if (receipt.id < m_oldestId) {
        return;
    }
    Place& place = m_places[receipt.id];
    m_bytes -= place.receipt ? place.receipt->size() : 0;
    place.receipt = std::make_shared<const Receipt>(std::move(receipt));
    place.version = ++m_version;
    m_bytes += place.receipt->size();
    while (m_places.size() > std::max<std::size_t>(m_limits.receipts, 1) ||
           (m_bytes > m_limits.bytes && m_places.size() > 1)) {
        dropOldest();
    }
    m_changed.notify_all();
}

void ReceiptShelf::dropOldest()
{
    const auto oldest = m_places.begin();
    m_oldestId = oldest->first + 1;
    m_bytes -= oldest->second.receipt->size();
    m_places.erase(oldest);
}

void ReceiptShelf::clear()
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    m_places.clear();
    m_bytes = 0;
    m_oldestId = m_lastNumber + 1;
    ++m_version;
    m_changed.notify_all();
}

ReceiptShelf::Kept ReceiptShelf::find(int id) const
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    const auto place = m_places.find(id);
    return place != m_places.end() ? place->second.receipt : nullptr;
}

ReceiptShelf::News ReceiptShelf::newsSince(Version version, std::chrono::milliseconds wait) const
{
    std::unique_lock<std::mutex> lock(m_mutex);
    const std::uint64_t wakes = m_wakes;
    m_changed.wait_for(lock, wait, [&] { return m_version > version || m_wakes != wakes; });
    News news;
    news.version = m_version;
    news.oldestId = m_oldestId;
    for (const auto& [id, place] : m_places) {
        if (place.version > version) {
            news.changed.push_back(place.receipt);
        }
    }
    return news;
}

void ReceiptShelf::wake()
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    ++m_wakes;
    m_changed.notify_all();
}

} // namespace printer_page
