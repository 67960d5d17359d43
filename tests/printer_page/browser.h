// Chromium without a window, driven through its debugging pipe.
#pragma once

#include <QProcess>
#include <nlohmann/json.hpp>

#include <chrono>
#include <csignal>
#include <stdexcept>
#include <string>

namespace q7test
{

class Browser
{
public:
    /** program: Chromium. profile: an empty folder for what it keeps. Throws std::runtime_error. */
    Browser(const std::string& program, const std::string& profile)
    {
        // It reads at 3 and writes at 4, in a session of its own, so that all of it can be ended.
        m_process.start("setsid",
                        {"sh", "-c", R"(exec "$0" "$@" 3<&0 4>&1 </dev/null >/dev/null 2>&1)",
                         QString::fromStdString(program), "--headless", "--no-sandbox",
                         "--disable-gpu", "--no-first-run", "--hide-scrollbars",
                         "--disable-dev-shm-usage", "--remote-debugging-pipe",
                         "--user-data-dir=" + QString::fromStdString(profile), "about:blank"});
        const auto target = call("Target.createTarget", {{"url", "about:blank"}}, false);
        m_session = call("Target.attachToTarget",
                         {{"targetId", target.at("targetId")}, {"flatten", true}}, false)
                        .at("sessionId");
        call("Page.enable");
    }

    ~Browser()
    {
        ::kill(-processGroup(), SIGKILL);
        m_process.waitForFinished();
    }

    /** Opens a page of that size in the place of the one before. */
    void open(const std::string& address, int widthPixels, int heightPixels)
    {
        call("Emulation.setDeviceMetricsOverride", {{"width", widthPixels},
                                                    {"height", heightPixels},
                                                    {"deviceScaleFactor", 1},
                                                    {"mobile", false}});
        call("Page.navigate", {{"url", address}});
    }

    /** The value of a JavaScript expression in the page; a promise's value when it is one. */
    nlohmann::json evaluate(const std::string& expression)
    {
        const auto result =
            call("Runtime.evaluate",
                 {{"expression", expression}, {"returnByValue", true}, {"awaitPromise", true}});
        if (result.contains("exceptionDetails")) {
            throw std::runtime_error(expression + ": " + result["exceptionDetails"].dump());
        }
        return result.at("result").value("value", nlohmann::json());
    }

    /** Waits until the expression is true; false when it is not within the time. */
    bool waitUntil(const std::string& expression, std::chrono::milliseconds timeout)
    {
        const auto deadline = std::chrono::steady_clock::now() + timeout;
        do {
            // The page itself waits between two looks.
            if (evaluate("new Promise(done => { const held = !!(" + expression +
                         "); held ? done(true) : setTimeout(() => done(false), 20); })") == true) {
                return true;
            }
        } while (std::chrono::steady_clock::now() < deadline);
        return false;
    }

    /** Presses and releases a key: " " or a name such as "Tab". */
    void press(const std::string& key, int code)
    {
        for (const char* type : {"keyDown", "keyUp"}) {
            nlohmann::json event = {{"type", type}, {"key", key}, {"windowsVirtualKeyCode", code}};
            if (key == " " && event["type"] == "keyDown") {
                event["text"] = " ";
            }
            call("Input.dispatchKeyEvent", event);
        }
    }

    /** What the page's own memory holds, after a collection. */
    double heapMegabytes()
    {
        call("HeapProfiler.collectGarbage");
        return call("Runtime.getHeapUsage").at("usedSize").get<double>() / 1e6;
    }

    /** The browser with everything that it has started. */
    pid_t processGroup() const { return static_cast<pid_t>(m_process.processId()); }

private:
    nlohmann::json call(const std::string& method,
                        nlohmann::json parameters = nlohmann::json::object(), bool inPage = true)
    {
        nlohmann::json message = {
            {"id", ++m_lastCall}, {"method", method}, {"params", std::move(parameters)}};
        if (inPage) {
            message["sessionId"] = m_session;
        }
        m_process.write(QByteArray::fromStdString(message.dump() + '\0'));
        for (;;) {
            for (std::size_t end; (end = m_received.find('\0')) != std::string::npos;) {
                const auto reply = nlohmann::json::parse(m_received.substr(0, end));
                m_received.erase(0, end + 1);
                if (reply.value("id", 0) == m_lastCall) {
                    if (reply.contains("error")) {
                        throw std::runtime_error(method + ": " + reply["error"].dump());
                    }
                    return reply["result"];
                }
            }
            if (!m_process.waitForReadyRead(30'000)) {
                throw std::runtime_error("the browser does not answer");
            }
            m_received += m_process.readAll().toStdString();
        }
    }

    QProcess m_process;
    int m_lastCall = 0;
    std::string m_session;
    std::string m_received;
};

} // namespace q7test
