// The table of models and the identifiers that a site enters.

#include "printer_connection.h"
#include "printer_models.h"
#include "q7_impressora.h"

#include "temporary_folder.h"

#include <gtest/gtest.h>
#include <set>

using namespace q7;
using q7test::DataFolder;

namespace
{

std::string idText(const char* model)
{
    return makeUsbIdText(model).toStdString();
}

TEST(Models, ShareUsbIdentifiersAsTheirMakersDo)
{
    std::set<quint16> makers;
    std::set<std::string> products;
    for (const PrinterModel& model : modelTable()) {
        makers.insert(model.vendorId);
        products.insert(idText(model.name));
    }
    EXPECT_EQ(6U, makers.size());
    EXPECT_EQ(modelTable().size() - 1, products.size()); // one has two names
    EXPECT_EQ(idText("ORLA-K"), idText("RANZA"));
    for (const auto& [one, other] : {std::pair("VANTA", "VESPA"), std::pair("VANTA", "RANZAPRO"),
                                     std::pair("VOLTA", "ORLA-K"), std::pair("SORBE", "SALVI")})
        EXPECT_EQ(modelByName(one)->vendorId, modelByName(other)->vendorId);
}

TEST(Models, AreFoundByNumberAndExactName)
{
    EXPECT_STREQ("TESMO", modelById(11)->name);
    EXPECT_EQ(nullptr, modelById(10));
    EXPECT_EQ(nullptr, modelByName("vanta"));
    EXPECT_EQ(nullptr, modelByName(""));
    EXPECT_EQ("VID_&PID_", idText("vanta"));
}

TEST(Models, TakeTheIdentifiersOfASite)
{
    DataFolder data;
    data.write("site.ini", "[VANTA]\nvendor_id=abc\nproduct_id=12\n"
                           "[VESPA]\nvendor_id=0FFFF\nproduct_id=0x12\n"
                           "[TESMO]\nproduct_id=FfFf\nvendor_id=\n"
                           "[XPTO]\nvendor_id=1\n");
    PrinterModels models = modelTable();
    applyUsbIdentifiers(models, IniFile(data.path() + "/site.ini"));
    EXPECT_EQ(0x0ABC, models[0].vendorId);
    EXPECT_EQ(0x0012, models[0].productId);
    EXPECT_EQ(modelById(1)->vendorId, models[1].vendorId);
    EXPECT_EQ(modelById(1)->productId, models[1].productId);
    EXPECT_EQ(0xFFFF, models.back().productId);
    EXPECT_EQ(modelById(11)->vendorId, models.back().vendorId);
    const auto log = data.takeLog();
    ASSERT_EQ(3U, log.size());
    for (const std::string& line : log)
        EXPECT_EQ("INFO ", line.substr(0, 5));
}

TEST(Models, AreOfTheSiteFromTheStart)
{
    const DataFolder data(DataFolder::Log::Off);
    data.write("q7_usb.ini", "[VANTA]\nvendor_id=abc\nproduct_id=12\n");
    EXPECT_EQ("VID_0ABC&PID_0012", idText("VANTA"));
}

TEST(Connection, OfNoKindOpensNothing)
{
    for (const int kind : {0, 4, -7}) {
        PrinterConnection connection;
        connection.setKind(kind);
        EXPECT_EQ(kind, connection.open("127.0.0.1", "VANTA", 9100));
        EXPECT_EQ(-4, connection.send("x"));
    }
}

TEST(Connection, NeverOpenedCloses)
{
    for (const auto& [kind, closed] : {std::pair(1, -4), std::pair(2, 0), std::pair(3, 0)}) {
        PrinterConnection connection;
        connection.setKind(kind);
        EXPECT_EQ(closed, connection.close());
        EXPECT_EQ(-4, connection.send("x"));
    }
}

} // namespace
