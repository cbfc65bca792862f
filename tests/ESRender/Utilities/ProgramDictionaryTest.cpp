// SPDX-License-Identifier: MIT
#include "ESRender/Utilities/ProgramDictionary.h"

#include <gtest/gtest.h>

TEST(ProgramDictionaryTest, KeysTurnIntoTypesAndBack) {
    EXPECT_EQ(ProgramDictionary::keyFromType(3), QStringLiteral("Type:3"));
    struct Case {
        const char* key;
        std::int64_t type;
    };
    for (const Case& test :
         {Case{"Type:3", 3}, Case{"plain", ProgramDictionary::kNoType}, Case{"", ProgramDictionary::kNoType},
          Case{"Type:", 0}, Case{"1Type:2Type:3", 123}, Case{"Type: -7x9", -7}, Case{"Type:x", 0},
          Case{"Type:99999999999999999999", std::numeric_limits<std::int64_t>::max()}}) {
        EXPECT_EQ(ProgramDictionary::typeFromKey(QLatin1String(test.key)), test.type) << test.key;
    }
    ProgramDictionary dictionary;
    dictionary.setValue(QStringLiteral("normal"), 1);
    EXPECT_EQ(dictionary.valueForType(1).toString(), QStringLiteral("normal"));
    EXPECT_TRUE(dictionary.contains(QStringLiteral("Type:1")));
    EXPECT_FALSE(dictionary.valueForType(2).isValid());
}
