#include "app/FileNames.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

TEST(FileNames, AStatementEndsInInvInAnyLetterCase)
{
    for (const QString& name : {u"Mine.inv"_s, u"/home/alex/MINE.INV"_s, u"a.Inv"_s, u"./2004.03.inv"_s,
                                u":/samples/Sample.inv"_s, u"Mine.Lto.inv"_s, u"/x.Lto/a b.inV"_s}) {
        EXPECT_TRUE(IsStatementFileName(name)) << name.toStdString();
    }
}

TEST(FileNames, AnythingElseIsNone)
{
    for (const QString& name :
         {QString(), u"Mine"_s, u"Mine.Lto"_s, u"inv"_s, u"Mineinv"_s, u".inv"_s, u"/home/alex/.inv"_s,
          u"Mine.inv.bak"_s, u"Mine.inv/"_s, u"/x.inv/Mine.Lto"_s, u"Mine.inv "_s}) {
        EXPECT_FALSE(IsStatementFileName(name)) << name.toStdString();
    }
}
