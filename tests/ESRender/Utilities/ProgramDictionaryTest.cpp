// SPDX-License-Identifier: MIT
#include "ESRender/Utilities/ProgramDictionary.h"

#include <gtest/gtest.h>

TEST(ProgramDictionaryTest, KeysTurnIntoTypesAndBack) {
    EXPECT_EQ(ProgramDictionary::keyFromType(3), QStringLiteral("Type:3"));
    for (const auto& [key, type] :
         {std::pair{"Type:3", std::int64_t{3}},
          {"plain", ProgramDictionary::kNoType},
          {"", ProgramDictionary::kNoType},
          {"Type:", 0},
          {"1Type:2Type:3", 123},
          {"Type: -7x9", -7},
          {"Type:x", 0},
          {"Type:99999999999999999999", std::numeric_limits<std::int64_t>::max()}}) {
        EXPECT_EQ(ProgramDictionary::typeFromKey(QLatin1String(key)), type) << key;
    }
    ProgramDictionary dictionary;
    dictionary.setValue(QStringLiteral("normal"), 1);
    EXPECT_EQ(dictionary.valueForType(1).toString(), QStringLiteral("normal"));
    EXPECT_TRUE(dictionary.contains(QStringLiteral("Type:1")));
    EXPECT_FALSE(dictionary.valueForType(2).isValid());
}
