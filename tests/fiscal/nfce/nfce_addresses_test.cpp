// The states' addresses and abbreviations, against the published list where it is at hand.
#include "nfce_addresses.h"
#include "state_table.h"
#include "test_files.h"

#include <gtest/gtest.h>
#include <sstream>
#include <vector>

using Kind = q7::NfceAddressKind;

namespace
{

std::string address(int ibgeNumber, Kind kind, bool isProduction)
{
    return q7::nfceAddress(ibgeNumber, kind, isProduction).toStdString();
}

std::vector<std::string> fieldsOf(const std::string& row)
{
    std::vector<std::string> fields;
    std::istringstream text(row + '\t');
    for (std::string field; std::getline(text, field, '\t');)
        fields.push_back(field);
    return fields;
}

TEST(NfceAddresses, AreThePublishedOnes)
{
    const std::string path = q7test::sampleData("nfce-addresses.tsv");
    if (path.empty())
        GTEST_SKIP() << "no nfce-addresses.tsv in the sample data";
    std::istringstream list(q7test::fileContent(path));
    std::string row;
    std::getline(list, row); // the columns' names
    int states = 0;
    for (; std::getline(list, row); ++states) {
        const std::vector<std::string> fields = fieldsOf(row);
        ASSERT_EQ(fields.size(), 6U) << row;
        const auto check = [&](Kind kind, const std::string& production,
                               const std::string& homologation) {
            const int number = std::stoi(fields[0]);
            EXPECT_EQ(address(number, kind, true), production) << row;
            EXPECT_EQ(address(number, kind, false),
                      homologation.empty() ? production : homologation)
                << row;
        };
        check(Kind::Consultation, fields[2], fields[3]);
        check(Kind::QrCode, fields[4], fields[5]);
        EXPECT_EQ(q7::stateAbbreviation(std::stoi(fields[0])).toStdString(), fields[1]);
    }
    EXPECT_EQ(states, 27);
}

TEST(NfceAddresses, OfNoStateIsEmpty)
{
    for (const int number : {-1, 0, 10, 34, 54, 99}) {
        EXPECT_EQ(address(number, Kind::Consultation, true), "");
        EXPECT_EQ(q7::stateAbbreviation(number), "");
    }
}

} // namespace
