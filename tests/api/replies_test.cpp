// Status, identification and raw replies.

#include "export_fixture.h"

using namespace q7test;

namespace
{

std::string statusQuery(int kind)
{
    return hex("10 04") + static_cast<char>(kind == 1 ? 1 : kind == 2 ? 2 : kind == 3 ? 4 : 20);
}

class Replies : public ExportTest
{
protected:
    /** From now on, the printer's reply to a query; an empty one stays away. */
    void answer(const std::string& query, const std::string& bytes)
    {
        farEnd->change([&](PrinterScript& script) { script.answers[query] = bytes; });
    }

    /** Waits until so many further bytes of replies have left the printer. */
    void waitForReply(std::size_t bytes)
    {
        ASSERT_TRUE(farEnd->waitUntil([sent = m_sent += bytes](const FakePrinter::Records& all) {
            return all.back().sent.size() >= sent;
        }));
    }

    int directIo(const std::string& command, unsigned size = sizeof reply)
    {
        replySize = size;
        return DirectIO(command.data(), static_cast<int>(command.size()), reply, &replySize);
    }

    char reply[64] = {};
    unsigned replySize = 0;

private:
    std::size_t m_sent = 7; // "_VANTA" and a zero byte, when the connection was opened
};

TEST_F(Replies, StatesOfASerialPrinter)
{
    const std::tuple<int, const char*, int> rows[] = {{1, "FB", 1}, {1, "04", 2}, {2, "04", 3},
                                                      {2, "FB", 4}, {3, "04", 6}, {3, "08", 6},
                                                      {3, "20", 7}, {3, "40", 7}, {3, "93", 5}};
    openSerial();
    for (const auto& [kind, bytes, state] : rows) {
        answer(statusQuery(kind), hex(bytes));
        EXPECT_EQ(state, StatusImpressora(kind)) << kind << ' ' << bytes;
        EXPECT_TRUE(sameBytes(hex("1D 61 00") + statusQuery(kind), takeSent()));
    }
    data.takeLog();
    EXPECT_EQ(5, StatusImpressora(3));
    EXPECT_EQ(-126, StatusImpressora(4));
    EXPECT_EQ(-127, StatusImpressora(0));
    EXPECT_EQ(logOf({"StatusImpressora. PARAMETROS:3", "> 1D 61 00", "> 10 04 04",
                     "StatusImpressora. RETORNO:5", "StatusImpressora. PARAMETROS:4",
                     "StatusImpressora. RETORNO:-126", "StatusImpressora. PARAMETROS:0"}),
              data.takeLog());
}

TEST_F(Replies, StatesOfATcpPrinter)
{
    const std::pair<const char*, int> rows[] = {{"00 00 20", 9}, {"FF FF DF FF", 8}, {"20 20", 8}};
    openTcp();
    for (const auto& [bytes, state] : rows) {
        answer(statusQuery(4), hex(bytes));
        EXPECT_EQ(state, StatusImpressora(4)) << bytes;
    }
    EXPECT_EQ(-126, StatusImpressora(1));
    // In pieces, the third byte counts all the same.
    farEnd->change([](PrinterScript& script) { script.byteGapMs = 2; });
    answer(statusQuery(4), hex("00 00 20"));
    EXPECT_EQ(9, StatusImpressora(4));
}

TEST_F(Replies, ACombinedStateEndsAtTheFirstFailure)
{
    openTcp();
    answer(statusQuery(3), "");
    data.takeLog();
    EXPECT_EQ(-81, StatusImpressora(5));
    EXPECT_EQ("FUNCAO StatusImpressora. RETORNO:-81", data.takeLog().back());
    EXPECT_TRUE(sameBytes(hex("1D 61 00 10 04 02  1D 61 00 10 04 04"), takeSent()));
}

TEST_F(Replies, ALateReplyDoesNotAnswerTheNextQuery)
{
    openTcp();
    for (const int lateMs : {1700, 1530}) {
        answer(statusQuery(3), hex("60"));
        farEnd->change([=](PrinterScript& script) { script.lateMs = lateMs; });
        EXPECT_EQ(-81, StatusImpressora(3));
        if (lateMs == 1700) // the other one is on its way
            waitForReply(1);
        farEnd->change([](PrinterScript& script) { script.lateMs = 0; });
        answer(statusQuery(3), hex("00"));
        EXPECT_EQ(5, StatusImpressora(3)) << lateMs;
    }
    // The same for an identification, and for a status that nobody took: DirectIO leaves it.
    answer(hex("1D 49 41"), "Q7" + std::string(1, '\0'));
    EXPECT_EQ(-9999, DirectIO(hex("10 04 04").data(), 3, nullptr, nullptr));
    waitForReply(4);
    EXPECT_STREQ("Q7", IdImpressora(2));
}

TEST_F(Replies, Identification)
{
    const std::string requests[] = {"01 31", "02 32", "41", "42", "43", "44", "45"};
    openTcp();
    for (int kind = 0; kind <= 6; ++kind) {
        const std::string query = hex("1D 49" + requests[kind]);
        const std::string name = "nome " + std::to_string(kind);
        farEnd->change([&](PrinterScript& script) {
            script.answers = {{query.substr(0, 3), name + '\0' + (kind % 2 == 0 ? "rest" : "")}};
            script.byteGapMs = kind % 2 * 2; // byte by byte
        });
        EXPECT_EQ(name, IdImpressora(kind));
        EXPECT_TRUE(sameBytes(query, takeSent()));
    }
    data.takeLog();
    EXPECT_STREQ("-402", IdImpressora(7));
    EXPECT_STREQ("-402", IdImpressora(-1));
    EXPECT_EQ(logOf({"IdImpressora. PARAMETROS:7", "IdImpressora. PARAMETROS:-1"}), data.takeLog());
}

TEST_F(Replies, IdentificationTextIsLatin1)
{
    openTcp();
    const std::pair<const char*, const char*> rows[] = {
        {"sem zero", "sem zero"}, {"ção", "\xE7\xE3o"}, {"A€B", "A"}};
    for (const auto& [sent, text] : rows) {
        answer(hex("1D 49 43"), sent);
        EXPECT_STREQ(text, IdImpressora(4));
    }
    farEnd->change([](PrinterScript& script) { script.silent = true; });
    EXPECT_STREQ("-81", IdImpressora(4));
}

TEST_F(Replies, DirectIoPassesBytesBothWays)
{
    const std::string query = hex("1D 28 4C 02 00 30 33");
    PrinterScript script;
    script.answers[query] = hex("00 41 00 FF");
    script.byteGapMs = 2;
    openTcp(script);
    EXPECT_EQ(0, directIo(query, 1)); // the size given is no bound
    EXPECT_TRUE(sameBytes(hex("00 41 00 FF"), {reply, replySize}));
    EXPECT_EQ(logOf({"> 1D 28 4C 02 00 30 33"}), data.takeLog());
    EXPECT_TRUE(sameBytes(query, takeSent()));

    // No reply wanted: it waits for a later call, which sends nothing itself.
    EXPECT_EQ(-9999, directIo(query, 0));
    waitForReply(4 + 4);
    data.takeLog();
    replySize = 9;
    EXPECT_EQ(0, DirectIO(nullptr, 5, reply, &replySize));
    EXPECT_EQ(4U, replySize);
    replySize = 9;
    EXPECT_EQ(-81, DirectIO("x", -1, reply, &replySize));
    EXPECT_EQ(0U, replySize);
    EXPECT_EQ(-9999, DirectIO("x", 1, nullptr, &replySize));
    EXPECT_EQ(-9999, DirectIO("x", 1, reply, nullptr));
    EXPECT_EQ(logOf({"> 78", "> 78"}), data.takeLog());
}

TEST_F(Replies, WaitsAtMost1500Milliseconds)
{
    openTcp();
    farEnd->change([](PrinterScript& script) { script.silent = true; });
    const std::function<int()> calls[] = {[] { return StatusImpressora(2); },
                                          [] { return IdImpressora(0)[1] - '0'; },
                                          [this] { return directIo("x"); }};
    for (const auto& call : calls) {
        const auto took = durationOf(call);
        EXPECT_GE(took, std::chrono::milliseconds(1450));
        EXPECT_LT(took, std::chrono::milliseconds(2500));
    }
}

} // namespace
