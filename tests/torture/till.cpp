#include "till.h"

#include "q7_impressora.h"

#include <csignal>
#include <cstdio>
#include <stdexcept>
#include <sys/wait.h>
#include <unistd.h>

namespace q7test
{
namespace
{

class OwnTill : public Till
{
public:
    int open(const FakePrinter& printer) override { return openOn(printer); }
    int print(const SampleReceipt& receipt) override { return receipt.print(); }
    int printText() override { return ImpressaoTexto("x", 0, 0, 0); }
    int status() override { return StatusImpressora(2); }
    int close() override { return FechaConexaoImpressora(); }
    void look() override { m_before = OwnResources(); }
    bool isAsBefore() override { return m_before.comeBack(); }

private:
    OwnResources m_before;
};

class ToldTill : public Till
{
public:
    explicit ToldTill(const std::string& command)
    {
        int tell[2] = {-1, -1};
        int hear[2] = {-1, -1};
        if (::pipe(tell) != 0 || ::pipe(hear) != 0)
            throw std::runtime_error("no pipe");
        m_child = ::fork();
        if (m_child == 0) {
            ::dup2(tell[0], STDIN_FILENO);
            ::dup2(hear[1], STDOUT_FILENO);
            for (const int end : {tell[0], tell[1], hear[0], hear[1]})
                ::close(end);
            ::execl("/bin/sh", "sh", "-c", command.c_str(), nullptr);
            ::_exit(127);
        }
        ::close(tell[0]);
        ::close(hear[1]);
        ::signal(SIGPIPE, SIG_IGN); // it may have ended
        m_tell = ::fdopen(tell[1], "w");
        m_hear = ::fdopen(hear[0], "r");
    }
    ~ToldTill() override
    {
        std::fclose(m_tell);
        std::fclose(m_hear);
        ::waitpid(m_child, nullptr, 0);
    }
    ToldTill(const ToldTill&) = delete;
    ToldTill& operator=(const ToldTill&) = delete;

    int open(const FakePrinter& printer) override
    {
        return tell("open 3 127.0.0.1 " + std::to_string(printer.port()) + " VANTA");
    }
    int print(const SampleReceipt& receipt) override
    {
        static const char* const kinds[] = {"sale", "cancellation", "note"};
        return tell(std::string(kinds[static_cast<int>(receipt.kind)]) + ' ' + receipt.path + ' ' +
                    std::to_string(receipt.options) + ' ' + receipt.signature);
    }
    int printText() override { return tell("text 64"); }
    int status() override { return tell("status 2"); }
    int close() override { return tell("close"); }
    void look() override { m_threads = tell("threads"); }
    bool isAsBefore() override
    {
        for (int attempt = 0; attempt < 50; ++attempt, ::usleep(100'000))
            if (tell("threads") == m_threads)
                return true;
        return false;
    }

private:
    int tell(const std::string& what)
    {
        int result = 0;
        int tookMs = 0;
        std::fprintf(m_tell, "%s\n", what.c_str());
        std::fflush(m_tell);
        if (std::fscanf(m_hear, "%d %d", &result, &tookMs) != 2)
            throw std::runtime_error("the program has ended at: " + what);
        return result;
    }

    pid_t m_child = -1;
    std::FILE* m_tell = nullptr;
    std::FILE* m_hear = nullptr;
    int m_threads = 0;
};

} // namespace

std::unique_ptr<Till> ownTill()
{
    return std::make_unique<OwnTill>();
}

std::unique_ptr<Till> toldTill(const std::string& command)
{
    return std::make_unique<ToldTill>(command);
}

} // namespace q7test
