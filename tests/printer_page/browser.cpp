#include "browser.h"

#include <QProcess>

#include <csignal>
#include <stdexcept>

namespace q7test
{
namespace
{

using nlohmann::json;

constexpr int replyTimeoutMs = 30'000;

} // namespace

Browser::Browser(const std::string& program, const std::string& profile)
    : m_process(std::make_unique<QProcess>())
{
    // It reads at 3 and writes at 4, in a session of its own, so that all of it can be ended.
    m_process->start("setsid",
                     {"sh", "-c", R"(exec "$0" "$@" 3<&0 4>&1 </dev/null >/dev/null 2>&1)",
                      QString::fromStdString(program), "--headless", "--no-sandbox",
                      "--disable-gpu", "--no-first-run", "--hide-scrollbars",
                      "--disable-dev-shm-usage", "--remote-debugging-pipe",
                      "--user-data-dir=" + QString::fromStdString(profile), "about:blank"});
    const json target = call("Target.createTarget", {{"url", "about:blank"}}, false);
    m_session = call("Target.attachToTarget",
                     {{"targetId", target.at("targetId")}, {"flatten", true}}, false)
                    .at("sessionId");
    call("Page.enable", json::object());
}

Browser::~Browser()
{
    ::kill(-processGroup(), SIGKILL);
    m_process->waitForFinished();
}

pid_t Browser::processGroup() const
{
    return static_cast<pid_t>(m_process->processId());
}

json Browser::call(const std::string& method, json parameters, bool inPage)
{
    json message = {{"id", ++m_lastCall}, {"method", method}, {"params", std::move(parameters)}};
    if (inPage) {
        message["sessionId"] = m_session;
    }
    m_process->write(QByteArray::fromStdString(message.dump() + '\0'));
    for (;;) {
        for (std::size_t end; (end = m_received.find('\0')) != std::string::npos;) {
            const json reply = json::parse(m_received.substr(0, end));
            m_received.erase(0, end + 1);
            if (reply.value("id", 0) == m_lastCall) {
                if (reply.contains("error")) {
                    throw std::runtime_error(method + ": " + reply["error"].dump());
                }
                return reply["result"];
            }
        }
        if (!m_process->waitForReadyRead(replyTimeoutMs)) {
            throw std::runtime_error("the browser does not answer");
        }
        m_received += m_process->readAll().toStdString();
    }
}

void Browser::open(const std::string& address, int widthPixels, int heightPixels)
{
    call("Emulation.setDeviceMetricsOverride", {{"width", widthPixels},
                                                {"height", heightPixels},
                                                {"deviceScaleFactor", 1},
                                                {"mobile", false}});
    call("Page.navigate", {{"url", address}});
}

json Browser::evaluate(const std::string& expression)
{
    const json result =
        call("Runtime.evaluate",
             {{"expression", expression}, {"returnByValue", true}, {"awaitPromise", true}});
    if (result.contains("exceptionDetails")) {
        throw std::runtime_error(expression + ": " + result["exceptionDetails"].dump());
    }
    return result.at("result").value("value", json());
}

bool Browser::waitUntil(const std::string& expression, std::chrono::milliseconds timeout)
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

void Browser::press(const std::string& key, int code)
{
    for (const char* type : {"keyDown", "keyUp"}) {
        json event = {{"type", type}, {"key", key}, {"windowsVirtualKeyCode", code}};
        if (key == " " && event["type"] == "keyDown") {
            event["text"] = " ";
        }
        call("Input.dispatchKeyEvent", event);
    }
}

double Browser::heapMegabytes()
{
    call("HeapProfiler.collectGarbage", json::object());
    return call("Runtime.getHeapUsage", json::object()).at("usedSize").get<double>() / 1e6;
}

} // namespace q7test
