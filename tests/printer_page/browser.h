// Chromium without a window, driven through its debugging pipe.
#pragma once

#include <nlohmann/json.hpp>

#include <chrono>
#include <memory>
#include <string>

#include <sys/types.h>

class QProcess; // whose header takes names that others use

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
    /** What the page's own memory holds, after a collection. */
    double heapMegabytes();
    /** The browser with everything that it has started. */
    pid_t processGroup() const;

private:
    nlohmann::json call(const std::string& method, nlohmann::json parameters, bool inPage = true);

    const std::unique_ptr<QProcess> m_process;
    int m_lastCall = 0;
    std::string m_session;
    std::string m_received;
};

} // namespace q7test
