// Chromium without a window, driven through its debugging pipe.
#pragma once

#include <nlohmann/json.hpp>

#include <chrono>
#include <string>

#include <sys/types.h>

namespace q7test
{

class Browser
{
public:
    /** program: Chromium. profile: an empty folder for what it keeps. Throws std::runtime_error. */
    Browser(const std::string& program, const std::string& profile);
    ~Browser();
    Browser(const Browser&) = delete;
    Browser& operator=(const Browser&) = delete;

    /** Opens a page of that size in the place of the one before. */
    void open(const std::string& address, int widthPixels, int heightPixels);
    /** The value of a JavaScript expression in the page; a promise's value when it is one. */
    nlohmann::json evaluate(const std::string& expression);
    /** Waits until the expression is true; false when it is not within the time. */
    bool waitUntil(const std::string& expression,
                   std::chrono::milliseconds timeout = std::chrono::seconds(10));
    /** Presses and releases a key: " " or a name such as "Tab". */
    void press(const std::string& key, int code);
    /** What the page shows as a PNG file. */
    void savePicture(const std::string& path);
    /** What the page's own memory holds, after a collection. */
    double heapMegabytes();
    pid_t process() const { return m_process; }

private:
    nlohmann::json call(const std::string& method, nlohmann::json parameters, bool inPage = true);
    nlohmann::json nextMessage();

    pid_t m_process = -1;
    int m_toBrowser = -1;
    int m_fromBrowser = -1;
    int m_lastCall = 0;
    std::string m_session;
    std::string m_received;
};

} // namespace q7test
