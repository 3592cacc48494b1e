#include "state/property_list.h"

#include <gtest/gtest.h>

#include <string>

#include "state/SavedState.h"

namespace talvex {
namespace {

// What is left out of a dictionary costs nothing that is beside it.
TEST(PropertyList, IsReadWhereItIsPlainBesideAllElse) {
    std::string deep;
    for (int depth = 0; depth < 8000; ++depth) {
        deep += "<array>";
    }
    struct Row {
        std::string value;
        bool isWhole = false;
        bool isCut = false;
    };
    for (const Row& row :
         {Row{"<!-- <array> --><string a='1'>&lt;&#x41;<![CDATA[<]]></string>", true},
          {"<dict><key>reg[0]</key><integer>9</integer></dict>"},
          {"<string>&unknown;</string>"},
          {"<string>&a;</string>"},
          {"<string>&#0;</string>"},
          {"<integer>1<array/></integer>"},
          {"<data>?</data>"},
          {"<real>1.5.2</real>"},
          {""},
          {deep, false, true},
          {"<string"}}) {
        const std::string start =
            "\xEF\xBB\xBF<?xml version='1.0'?><!DOCTYPE p [<!ENTITY a 'b'>]><plist><dict>";
        const auto content =
            readPropertyList(start + "<key>reg[0]</key><integer> +7 </integer>" + "<key>z</key>" +
                             row.value + "<key>reg[1]</key><real>-1e1</real></dict></plist>");
        ASSERT_TRUE(content) << row.value;
        EXPECT_EQ(content->isWhole, row.isWhole) << row.value;
        const SavedState state = savedStateFrom(content->values);
        EXPECT_EQ(state.reg[0], 7) << row.value;
        EXPECT_EQ(state.reg[1], row.isCut ? 0 : -10) << row.value;
    }
    EXPECT_FALSE(readPropertyList("<plist><array/></plist>"));
    EXPECT_FALSE(readPropertyList("<plist><dict>"));
    EXPECT_FALSE(readPropertyList(std::string(kLargestPropertyList + 1, ' ')));
}

}  // namespace
}  // namespace talvex
