// Who may ask the page's server for what: only the page itself, whatever a browser was told to send.
#pragma once

#include <cstdint>
#include <string>

namespace printer_page
{

/** What a browser says of a request; empty where it says nothing. */
struct Asker {
    std::string host;      // Host
    std::string origin;    // Origin
    std::string fetchSite; // Sec-Fetch-Site
    std::string token;     // what the page sends with its own requests
};

class PageGuard
{
public:
    /** Makes a token that nobody can guess. port: where the page is served. */
    explicit PageGuard(std::uint16_t port);

    /** Given to the page alone, inside it. */
    const std::string& token() const { return m_token; }

    /** Looking: from this machine by one of its own names (a name of a foreign site that leads here
     *  is none), and not on behalf of another site. */
    bool mayLook(const Asker& asker) const;
    /** Switching: the page itself, which says where it comes from and knows the token. */
    bool maySwitch(const Asker& asker) const;

private:
    std::string m_hosts[2]; // "127.0.0.1:8080", "localhost:8080"
    std::string m_token;
};

} // namespace printer_page
