#include "browser.h"
#include "bytes.h"
#include "printer_page.h"
#include "program.h"
#include "temporary_folder.h"

#include <asio/io_context.hpp>
#include <asio/ip/tcp.hpp>
#include <asio/read.hpp>
#include <asio/write.hpp>
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <thread>

namespace
{

using q7test::Browser;
using std::chrono::milliseconds;

/** Memory of a process; what several share is divided among them. */
double megabytes(const std::filesystem::path& process)
{
    double kilobytes = 0;
    std::ifstream memory(process / "smaps_rollup");
    std::string word;
    while (memory >> word && word != "Pss:")
        continue;
    memory >> kilobytes;
    return kilobytes / 1000;
}

double groupMegabytes(pid_t group)
{
    double sum = 0;
    for (const auto& entry : std::filesystem::directory_iterator("/proc")) {
        const pid_t process = std::atoi(entry.path().filename().c_str());
        sum += process > 0 && getpgid(process) == group ? megabytes(entry) : 0;
    }
    return sum;
}

/** The printer, its page, and a browser that has it open. */
class Page : public testing::Test
{
protected:
    void SetUp() override
    {
        if (std::string(Q7_CHROMIUM).empty()) {
            GTEST_SKIP() << "no Chromium on this machine";
        }
        printer_page::PrinterPageSettings settings;
        settings.pagePort = 0;
        m_page = std::make_unique<printer_page::PrinterPage>(settings);
        m_serving = std::thread([this] { m_page->run(); });
        m_browser = std::make_unique<Browser>(Q7_CHROMIUM, m_profile.path());
        open(1280, 1400);
    }

    void TearDown() override
    {
        m_browser.reset();
        if (m_page) {
            m_page->stop();
            m_serving.join();
        }
    }

    void open(int widthPixels, int heightPixels)
    {
        m_browser->open(m_page->pageAddress(), widthPixels, heightPixels);
        ASSERT_TRUE(waitUntil("document.querySelector('#link')?.dataset.state == 'up'"));
    }

    bool waitUntil(const std::string& expression, milliseconds timeout = std::chrono::seconds(10))
    {
        return m_browser->waitUntil(expression, timeout);
    }
    std::string text(const std::string& selector)
    {
        return m_browser->evaluate("document.querySelector('" + selector + "').innerText");
    }

    void print(const std::string& document)
    {
        const q7test::ProgramResult result = q7test::runProgram(
            {Q7_PRINT_DOCUMENT, "VANTA", "net:127.0.0.1:" + std::to_string(m_page->printerPort()),
             std::string(Q7_DOCUMENTS) + "/" + document, "--options", "0xC0"});
        ASSERT_EQ(result.exitCode, 0) << result.output;
    }

    /** Sends bytes on a connection of their own, and gives what comes back: so many bytes. */
    std::string send(const std::string& bytes, std::size_t replySize = 0) const
    {
        asio::io_context context;
        asio::ip::tcp::socket socket(context);
        socket.connect({asio::ip::address_v4::loopback(), m_page->printerPort()});
        asio::write(socket, asio::buffer(bytes));
        std::string reply(replySize, '\0');
        asio::read(socket, asio::buffer(reply));
        return reply;
    }

    q7test::TemporaryFolder m_profile;
    std::unique_ptr<printer_page::PrinterPage> m_page;
    std::thread m_serving;
    std::unique_ptr<Browser> m_browser;
};

std::string longReceipt()
{
    std::string receipt = "\x1B@";
    for (int item = 1; item <= 800; ++item) {
        receipt += std::to_string(item) + " ARROZ TIPO 1 5KG        1 UN X 25,90\n";
    }
    return receipt + std::string("\x1DV\0", 3);
}

const std::string firstPicture = "document.querySelector('.receipt canvas')?.height > 0";

} // namespace

TEST_F(Page, ShowsAReceiptWithinASecondOfItsPrinting)
{
    print("venda-simples.xml");
    const auto printed = std::chrono::steady_clock::now();
    EXPECT_TRUE(waitUntil(firstPicture));
    const auto shown = std::chrono::steady_clock::now();
    EXPECT_LT(shown - printed, std::chrono::seconds(1));

    print("autorizada-consumidor-cpf.xml");
    EXPECT_TRUE(waitUntil("document.querySelectorAll('.receipt').length == 2"));
    EXPECT_EQ(text(".receipt h3"), "Cupom 2") << "the newest first";

    send(longReceipt());
    EXPECT_TRUE(waitUntil("document.querySelectorAll('.receipt').length == 3"));
    EXPECT_TRUE(waitUntil(
        "document.querySelectorAll('.receipt:first-child canvas').length >= 1 && " + firstPicture));
    EXPECT_TRUE(
        waitUntil("document.querySelector('.receipt').querySelectorAll('canvas').length == 2"))
        << "two parts";
}

TEST_F(Page, ShowsWhatThePrinterNoted)
{
    send(q7test::hex("1D 28 6B 03 00 31 43 10  1D 28 6B 63 00 31 50 30") + std::string(96, 'q') +
         q7test::hex("1D 28 6B 03 00 31 51 30  1B 70 30 64 64  1D 56 00"));
    EXPECT_TRUE(waitUntil("document.querySelectorAll('.notes li').length == 2"));
    EXPECT_EQ(text(".notes li"),
              "QR Code não impresso: tem 592 pontos de largura, e há lugar para 576");
    EXPECT_EQ(text("#news"), "Cupom 1 impresso, com 2 avisos.");
    m_browser->evaluate("document.querySelector('[data-what=\"comandos.txt\"]').open = true");
    EXPECT_TRUE(waitUntil("document.querySelectorAll('details pre')[1].textContent"
                          ".includes('imprime QR Code')"));
}

TEST_F(Page, IsSwitchedByKeyboard)
{
    m_browser->evaluate("document.querySelector('[name=papel]').focus()");
    m_browser->press("ArrowRight", 39);
    m_browser->press("ArrowRight", 39);
    EXPECT_TRUE(waitUntil("document.querySelector('#verdict').textContent == "
                          "'Não pode imprimir: sem papel'"));
    const q7test::ProgramResult state =
        q7test::runProgram({Q7_TOOL, "estado", "--biblioteca", Q7_LIBRARY, "--impressora",
                            "VANTA@net:127.0.0.1:" + std::to_string(m_page->printerPort())});
    EXPECT_EQ(state.exitCode, 4);
    EXPECT_NE(state.output.find("sem papel"), std::string::npos) << state.output;
    m_browser->press("Tab", 9);
    m_browser->press(" ", 32);
    EXPECT_TRUE(waitUntil("document.querySelector('#verdict').textContent == "
                          "'Não pode imprimir: sem papel, tampa aberta'"));
    EXPECT_EQ(send("\x10\x04\x02", 1), "\x36");
}

TEST_F(Page, FitsASmallWindow)
{
    print("autorizada-consumidor-cpf.xml");
    open(360, 800);
    EXPECT_TRUE(waitUntil(firstPicture));
    EXPECT_EQ(m_browser->evaluate("document.documentElement.scrollWidth"), 360);
    EXPECT_LE(m_browser->evaluate("document.querySelector('.receipt canvas').clientWidth"), 340);
    m_browser->evaluate("document.querySelector('#dots').click()");
    EXPECT_EQ(m_browser->evaluate("document.querySelector('.receipt canvas').clientWidth"), 640)
        << "a dot is a pixel";
    EXPECT_EQ(m_browser->evaluate("document.documentElement.scrollWidth"), 360)
        << "only the paper moves sideways";
}

TEST_F(Page, HoldsTwoHundredReceipts)
{
#ifdef __SANITIZE_ADDRESS__
    GTEST_SKIP() << "freed memory stays in the sanitizer's quarantine";
#endif
    const auto printReceipts = [this](int count) {
        std::string receipts;
        for (int number = 0; number < count; ++number) {
            receipts += longReceipt().substr(0, 2000) + std::string("\n\x1DV\0", 4);
        }
        send(receipts);
    };
    printReceipts(5);
    ASSERT_TRUE(waitUntil("document.querySelectorAll('.receipt').length == 5"));
    const double browserBefore = groupMegabytes(m_browser->processGroup());
    const double heapBefore = m_browser->heapMegabytes();
    const double programBefore = megabytes("/proc/self");
    printReceipts(215);
    ASSERT_TRUE(waitUntil("document.querySelector('h3').textContent == 'Cupom 220'",
                          std::chrono::seconds(60)));
    EXPECT_EQ(m_browser->evaluate("document.querySelectorAll('.receipt').length"), 200);
    // Past every picture, as a person who looks for an old one.
    for (int screen = 0; screen < 30; ++screen) {
        m_browser->evaluate("scrollBy(0, document.body.scrollHeight / 30), "
                            "new Promise(requestAnimationFrame)");
    }
    m_browser->evaluate("document.querySelector('li:last-child .sight').open = true, "
                        "scrollTo(0, document.body.scrollHeight)");
    EXPECT_TRUE(waitUntil("document.querySelector('li:last-child canvas').height > 0"));
    // What the browser has yet to throw away is not what the page holds.
    const auto grown = [&] { return groupMegabytes(m_browser->processGroup()) - browserBefore; };
    for (const auto end = std::chrono::steady_clock::now() + std::chrono::seconds(30);
         grown() >= 200 && std::chrono::steady_clock::now() < end;)
        m_browser->evaluate("new Promise(requestAnimationFrame)");
    EXPECT_LT(grown(), 200);
    EXPECT_LT(m_browser->heapMegabytes() - heapBefore, 20);
    EXPECT_LT(megabytes("/proc/self") - programBefore, 200);
}
