#include "printer_page.h"
#include "streams.h"

#include <asio/io_context.hpp>
#include <asio/ip/tcp.hpp>
#include <asio/write.hpp>
#include <gtest/gtest.h>
#include <httplib.h>
#include <nlohmann/json.hpp>

#include <thread>

namespace
{

using nlohmann::json;
using namespace std::chrono_literals;

class PageOverHttp : public testing::Test
{
protected:
    PageOverHttp() : m_page(settings()), m_serving([this] { m_page.run(); })
    {
        m_http.set_read_timeout(10s);
        m_http.set_default_headers({{"Origin", m_origin}});
        const std::string page = m_http.Get("/")->body;
        const std::string mark = "name=\"q7-token\" content=\"";
        m_token = page.substr(page.find(mark) + mark.size(), 32);
    }
    ~PageOverHttp() override
    {
        m_page.stop();
        m_serving.join();
    }

    static printer_page::PrinterPageSettings settings()
    {
        printer_page::PrinterPageSettings settings;
        settings.pagePort = 0;
        settings.keptReceipts = 3;
        return settings;
    }

    /** Sends to the printer or, with its port, to the page; gives what comes back up to the end or
     *  to so many bytes. */
    static std::string send(std::uint16_t port, const std::string& bytes,
                            std::size_t replySize = SIZE_MAX)
    {
        asio::io_context context;
        asio::ip::tcp::socket socket(context);
        socket.connect({asio::ip::address_v4::loopback(), port});
        std::error_code ended;
        asio::write(socket, asio::buffer(bytes), ended);
        if (replySize == SIZE_MAX) {
            socket.shutdown(asio::ip::tcp::socket::shutdown_send, ended);
        }
        std::string reply;
        char buffer[4096];
        while (!ended && reply.size() < replySize) {
            reply.append(buffer, socket.read_some(asio::buffer(buffer), ended));
        }
        return reply;
    }
    void print(const std::string& bytes) const { send(m_page.printerPort(), bytes); }

    /** Follows the events until one satisfies the condition; its data. */
    json waitForEvent(const std::string& name, const std::function<bool(const json&)>& condition)
    {
        json found;
        std::string pending;
        const auto deadline = std::chrono::steady_clock::now() + 10s;
        httplib::Client events(m_origin);
        events.Get("/eventos", [&](const char* data, std::size_t size) {
            pending.append(data, size);
            for (std::size_t end; (end = pending.find("\n\n")) != std::string::npos;) {
                const std::string head = "event: " + name + "\ndata: ";
                if (pending.compare(0, head.size(), head) == 0) {
                    const json event = json::parse(pending.substr(head.size(), end - head.size()));
                    if (condition(event)) {
                        found = event;
                        return false;
                    }
                }
                pending.erase(0, end + 2);
            }
            return std::chrono::steady_clock::now() < deadline;
        });
        return found;
    }
    json waitForReceipt(int number)
    {
        json found;
        waitForEvent("cupons", [&](const json& event) {
            for (const json& receipt : event["mudados"]) {
                if (receipt["numero"] == number && receipt["pronto"] == true) {
                    found = receipt;
                }
            }
            return !found.is_null();
        });
        return found;
    }

    /** The status of an answer to the page's own switches. */
    int switchedBy(const std::string& body)
    {
        return m_http
            .Post("/chaves", {{"X-Q7-Token", m_token}}, body, "application/x-www-form-urlencoded")
            ->status;
    }

    printer_page::PrinterPage m_page;
    std::thread m_serving;
    std::string m_origin = "http://127.0.0.1:" + std::to_string(m_page.pagePort());
    httplib::Client m_http{m_origin};
    std::string m_token;
};

const std::string statusQuery = "\x10\x04\x04";
const std::string cut("\x1DV\0", 3);

} // namespace

TEST_F(PageOverHttp, GivesAReceiptAsPictureTextCommandsAndBytes)
{
    print("\x1B@\x1DIC");                       // a connection that prints nothing is no receipt
    print("\x1B@Ol\xA0\n\x1D(k\x03\x01" + cut); // what cannot be read is told
    const json receipt = waitForReceipt(1);
    EXPECT_EQ(receipt["modelo"], "VANTA");
    EXPECT_EQ(receipt["imagens"], json::parse("[[640,78]]"));
    EXPECT_EQ(receipt["avisos"].size(), 1U) << receipt["avisos"];
    EXPECT_EQ(m_http.Get("/cupons/1/texto.txt")->body.substr(0, 5), "Olá\n");
    EXPECT_EQ(m_http.Get("/cupons/1/bytes.bin")->body, "\x1B@Ol\xA0\n\x1D(k\x03\x01" + cut);
    EXPECT_EQ(m_http.Get("/cupons/1/imagem-1.png")->body.substr(1, 3), "PNG");
    const std::string commands = m_http.Get("/cupons/1/comandos.txt")->body;
    EXPECT_NE(commands.find("inicialização"), std::string::npos) << commands;
    for (const char* missing : {"/cupons/2/texto.txt", "/cupons/1/imagem-2.png", "/cupons/1/x",
                                "/../page.css", "/cupons/99999999999/texto.txt"}) {
        EXPECT_EQ(m_http.Get(missing)->status, 404) << missing;
    }
}

TEST_F(PageOverHttp, ShowsAReceiptBeforeItIsCut)
{
    asio::io_context context;
    asio::ip::tcp::socket till(context);
    till.connect({asio::ip::address_v4::loopback(), m_page.printerPort()});
    asio::write(till, asio::buffer("uma linha\n", 10));
    const json event =
        waitForEvent("cupons", [](const json& news) { return !news["mudados"].empty(); });
    EXPECT_EQ(event["mudados"][0]["pronto"], false);
    EXPECT_EQ(m_http.Get("/cupons/1/texto.txt")->body, "uma linha\n");
}

TEST_F(PageOverHttp, KeepsTheLatestReceipts)
{
    for (int number = 1; number <= 5; ++number) {
        print("cupom " + std::to_string(number) + "\n" + cut);
        ASSERT_EQ(waitForReceipt(number)["numero"], number);
    }
    EXPECT_EQ(m_http.Get("/cupons/2/texto.txt")->status, 404);
    EXPECT_EQ(m_http.Get("/cupons/3/texto.txt")->status, 200);
}

TEST_F(PageOverHttp, SwitchesWhatThePrinterAnswers)
{
    const auto answer = [&] { return send(m_page.printerPort(), statusQuery, 1); };
    EXPECT_EQ(answer(), "\x12");
    EXPECT_EQ(switchedBy("papel=sem"), 204);
    EXPECT_EQ(answer(), "\x7E");
    EXPECT_EQ(switchedBy("papel=acabando"), 204);
    EXPECT_EQ(answer(), "\x1E");
    EXPECT_EQ(switchedBy("papel=tem&silencio=sim"), 204);
    EXPECT_EQ(send(m_page.printerPort(), statusQuery), "") << "silent";
    EXPECT_EQ(switchedBy("silencio=nao&modelo=TESMO"), 204);
    EXPECT_EQ(send(m_page.printerPort(), "~HI", 6), "\x02TESMO,V1.00,8,8192KB\x03\r\n");
    EXPECT_EQ(switchedBy("papel=talvez"), 400);
    EXPECT_EQ(switchedBy("modelo=NENHUM"), 400);
    EXPECT_EQ(waitForEvent("impressora", [](const json&) { return true; })["modelo"], "TESMO");
}

TEST_F(PageOverHttp, RefusesWhatIsNotThePage)
{
    httplib::Client other(m_origin);
    const httplib::Headers foreign = {{"X-Q7-Token", m_token}, {"Origin", "http://example.org"}};
    EXPECT_EQ(other.Post("/limpar", foreign, "", "text/plain")->status, 403);
    m_token.clear();
    EXPECT_EQ(switchedBy("papel=sem"), 403) << "no token";
    EXPECT_EQ(other.Get("/", {{"Host", "example.org"}})->status, 403);
    EXPECT_EQ(other.Get("/eventos", {{"Sec-Fetch-Site", "cross-site"}})->status, 403);
    EXPECT_EQ(send(m_page.printerPort(), statusQuery, 1), "\x12") << "nothing was switched";
}

TEST_F(PageOverHttp, OutlivesRequestsThatAreNone)
{
    std::vector<std::string> requests = {
        "",
        "\r\n\r\n",
        "GET\r\n\r\n",
        "GET / HTTP/9.9\r\n\r\n",
        "GET /%00%ff%zz HTTP/1.1\r\nHost: 127.0.0.1\r\n\r\n",
        "GET " + std::string(100'000, '/') + " HTTP/1.1\r\n\r\n",
        "GET / HTTP/1.1\r\n" + std::string(200'000, 'x'),
        "GET / HTTP/1.1\r\nHost:" + std::string(100'000, ' ') + "\r\n\r\n",
        "POST /chaves HTTP/1.1\r\nContent-Length: 99999999999999999999\r\n\r\nx",
        "POST /chaves HTTP/1.1\r\nContent-Length: -1\r\n\r\nx",
        "POST /chaves HTTP/1.1\r\nTransfer-Encoding: chunked\r\n\r\nFFFFFFFFFFFFFFFF\r\nx",
        "PRI * HTTP/2.0\r\n\r\nSM\r\n\r\n",
        std::string("\x16\x03\x01\x02\0\x01\0\x01\xFC\x03\x03", 11),
    };
    for (unsigned seed = 1; seed <= 40; ++seed) {
        requests.push_back((seed % 2 == 0 ? "" : "GET / HTTP/1.1\r\n") +
                           hostileStream(seed, 2000, "\r\nHost: 127.0.0.1\r\n"));
    }
    for (const std::string& request : requests) {
        send(m_page.pagePort(), request);
    }
    // Said and left in the middle, more often than there are threads.
    asio::io_context context;
    std::vector<asio::ip::tcp::socket> idle;
    for (int count = 0; count < 12; ++count) {
        idle.emplace_back(context).connect({asio::ip::address_v4::loopback(), m_page.pagePort()});
        asio::write(idle.back(), asio::buffer("GET / HT", 8));
    }
    httplib::Client person(m_origin);
    person.set_read_timeout(30s);
    const httplib::Result page = person.Get("/");
    ASSERT_TRUE(page);
    EXPECT_EQ(page->status, 200);
}

TEST_F(PageOverHttp, RandomStreamsToThePrinterDoNoHarm)
{
    for (unsigned seed = 1; seed <= 12; ++seed) {
        print(hostileStream(seed, 30'000, ""));
    }
    print(std::string(70'000, '\0') + "\x1B@vivo\n" + cut);
    const json event = waitForEvent("cupons", [&](const json& news) {
        const int number =
            news["mudados"].empty() ? 0 : news["mudados"].back()["numero"].get<int>();
        const auto text = m_http.Get("/cupons/" + std::to_string(number) + "/texto.txt");
        return text && text->body.find("vivo\n") != std::string::npos;
    });
    EXPECT_FALSE(event.is_null());
}
