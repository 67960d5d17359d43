#include "page_guard.h"

#include <algorithm>
#include <random>

namespace printer_page
{
namespace
{

std::string randomToken()
{
    std::random_device random;
    constexpr char digits[] = "0123456789abcdef";
    std::string token;
    for (int digit = 0; digit < 32; ++digit) {
        token += digits[random() % 16];
    }
    return token;
}

bool sameSecret(const std::string& a, const std::string& b)
{
    // Takes as long for a wrong first letter as for a wrong last one.
    unsigned different = a.size() == b.size() ? 0 : 1;
    for (std::size_t at = 0; at < std::min(a.size(), b.size()); ++at) {
        different |= static_cast<unsigned>(a[at] ^ b[at]);
    }
    return different == 0;
}

} // namespace

PageGuard::PageGuard(std::uint16_t port) : m_token(randomToken())
{
    // Browsers leave the usual port out.
    const std::string suffix = port == 80 ? "" : ":" + std::to_string(port);
    m_hosts[0] = "127.0.0.1" + suffix;
    m_hosts[1] = "localhost" + suffix;
}

bool PageGuard::mayLook(const Asker& asker) const
{
    const bool ownHost = asker.host == m_hosts[0] || asker.host == m_hosts[1];
    const bool ownOrigin = asker.origin.empty() || asker.origin == "http://" + asker.host;
    const bool ownSite = asker.fetchSite.empty() || asker.fetchSite == "same-origin" ||
                         asker.fetchSite == "none"; // typed by a person
    return ownHost && ownOrigin && ownSite;
}

bool PageGuard::maySwitch(const Asker& asker) const
{
    return mayLook(asker) && !asker.origin.empty() && sameSecret(asker.token, m_token);
}

} // namespace printer_page
