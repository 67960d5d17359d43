#include "browser.h"

#include <csignal>
#include <fstream>
#include <stdexcept>

#include <fcntl.h>
#include <poll.h>
#include <sys/wait.h>
#include <unistd.h>

namespace q7test
{
namespace
{

using nlohmann::json;

constexpr int replyTimeoutMs = 30'000;

std::string fromBase64(const std::string& text)
{
    const std::string letters = "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789+/";
    std::string bytes;
    unsigned bits = 0;
    int count = 0;
    for (const char letter : text) {
        const std::size_t value = letters.find(letter);
        if (value == std::string::npos) {
            break;
        }
        bits = bits << 6U | static_cast<unsigned>(value);
        count += 6;
        if (count >= 8) {
            count -= 8;
            bytes += static_cast<char>(bits >> static_cast<unsigned>(count) & 0xFFU);
        }
    }
    return bytes;
}

} // namespace

Browser::Browser(const std::string& program, const std::string& profile)
{
    int to[2];
    int from[2];
    if (pipe2(to, O_CLOEXEC) != 0 || pipe2(from, O_CLOEXEC) != 0) {
        throw std::runtime_error("no pipe to the browser");
    }
    const std::string folder = "--user-data-dir=" + profile;
    m_process = fork();
    if (m_process == 0) {
        // The browser reads at 3 and writes at 4; neither may be one of the ends yet to be moved.
        const int in = fcntl(to[0], F_DUPFD, 10);
        const int out = fcntl(from[1], F_DUPFD, 10);
        const int nothing = ::open("/dev/null", O_RDWR);
        dup2(in, 3);
        dup2(out, 4);
        for (const int fd : {0, 1, 2}) {
            dup2(nothing, fd);
        }
        setpgid(0, 0);
        execl(program.c_str(), program.c_str(), "--headless", "--no-sandbox", "--disable-gpu",
              "--no-first-run", "--hide-scrollbars", "--disable-dev-shm-usage",
              "--remote-debugging-pipe", folder.c_str(), "about:blank", nullptr);
        _exit(127);
    }
    close(to[0]);
    close(from[1]);
    m_toBrowser = to[1];
    m_fromBrowser = from[0];
    signal(SIGPIPE, SIG_IGN); // a browser that is gone is seen by its silence
    const json target = call("Target.createTarget", {{"url", "about:blank"}}, false);
    m_session = call("Target.attachToTarget",
                     {{"targetId", target.at("targetId")}, {"flatten", true}}, false)
                    .at("sessionId");
    call("Page.enable", json::object());
}

Browser::~Browser()
{
    close(m_toBrowser);
    close(m_fromBrowser);
    kill(-m_process, SIGKILL); // with everything that it has started
    waitpid(m_process, nullptr, 0);
}

json Browser::nextMessage()
{
    for (;;) {
        const std::size_t end = m_received.find('\0');
        if (end != std::string::npos) {
            json message = json::parse(m_received.substr(0, end));
            m_received.erase(0, end + 1);
            return message;
        }
        pollfd readable{m_fromBrowser, POLLIN, 0};
        char buffer[65536];
        const ssize_t count = poll(&readable, 1, replyTimeoutMs) == 1
                                  ? read(m_fromBrowser, buffer, sizeof buffer)
                                  : 0;
        if (count <= 0) {
            throw std::runtime_error("the browser does not answer");
        }
        m_received.append(buffer, static_cast<std::size_t>(count));
    }
}

json Browser::call(const std::string& method, json parameters, bool inPage)
{
    json message = {{"id", ++m_lastCall}, {"method", method}, {"params", std::move(parameters)}};
    if (inPage) {
        message["sessionId"] = m_session;
    }
    const std::string text = message.dump() + '\0';
    if (write(m_toBrowser, text.data(), text.size()) != static_cast<ssize_t>(text.size())) {
        throw std::runtime_error("the browser is gone");
    }
    for (;;) {
        json reply = nextMessage();
        if (reply.value("id", 0) == m_lastCall) {
            if (reply.contains("error")) {
                throw std::runtime_error(method + ": " + reply["error"].dump());
            }
            return reply["result"];
        }
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
        const json holds = evaluate("new Promise(done => { const held = !!(" + expression +
                                    "); held ? done(true) : setTimeout(() => done(false), 20); })");
        if (holds == true) {
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

void Browser::savePicture(const std::string& path)
{
    const json picture = call("Page.captureScreenshot", {{"format", "png"}});
    std::ofstream(path, std::ios::binary) << fromBase64(picture.at("data"));
}

double Browser::heapMegabytes()
{
    call("HeapProfiler.collectGarbage", json::object());
    return call("Runtime.getHeapUsage", json::object()).at("usedSize").get<double>() / 1e6;
}

} // namespace q7test
