// Each tag family against hand-worked results: arguments missing, extra,
// empty, quoted with commas and brackets, negative, beyond the length, and
// find( nested and failing.
#include <tuple>

#include "structure/StructureFixture.h"

namespace nomra::testing {
namespace {

struct Case {
  const char* structure;
  const char* pending;
  const char* expected;
};

void PrintTo(const Case& c, std::ostream* out) { *out << c.structure << " on " << c.pending; }

class TagFamilyTable : public StructureTest, public ::testing::WithParamInterface<Case> {};

TEST_P(TagFamilyTable, GivesTheHandWorkedResult) {
  EXPECT_EQ(Evaluate(GetParam().structure, GetParam().pending, "Music/Rock"), GetParam().expected);
}

INSTANTIATE_TEST_SUITE_P(
    NameLeft, TagFamilyTable,
    ::testing::Values(Case{"<NAME_L(3)>", "abcdef.txt", "abc"}, Case{"<NAME_L(0)>", "abcdef.txt", ""},
                      Case{"<NAME_L(99)>", "abcdef.txt", "abcdef"}, Case{"<NAME_L(-2)>", "abcdef.txt", ""},
                      Case{"<NAME_L(2.5)>", "abcdef.txt", "ab"}, Case{"<NAME_L(3.5)>", "abcdef.txt", "abcd"},
                      Case{"<NAME_L(99999999999)>", "abcdef.txt", ""}, Case{"<NAME_L()>", "abcdef.txt", "<ERROR>"},
                      Case{"<NAME_L(1,2)>", "abcdef.txt", "<ERROR>"}, Case{"<NAME_L(2)", "abcdef.txt", "<ERROR>"},
                      Case{"<NAME_L(x)>", "abcdef.txt", "<No_Number>"},
                      Case{"<NAME_L(\"2\")>", "abcdef.txt", "<No_Number>"}, Case{"<NAME_L( 2 )>", "abcdef.txt", "ab"},
                      Case{"<NAME_L(2)><NAME_L(1)>", "abcdef.txt", "aba"}, Case{"<name_l(2)>", "äöüß.txt", "äö"}));

INSTANTIATE_TEST_SUITE_P(
    NameRight, TagFamilyTable,
    ::testing::Values(Case{"<NAME_R(2)>", "abcdef.txt", "ef"}, Case{"<NAME_R(0)>", "abcdef.txt", ""},
                      Case{"<NAME_R(99)>", "abcdef.txt", "abcdef"}, Case{"<NAME_R(-1)>", "abcdef.txt", ""},
                      Case{"<NAME_R(,)>", "abcdef.txt", "<No_Number>"}, Case{"<NAME_R(2)>", "ab€d.txt", "€d"}));

INSTANTIATE_TEST_SUITE_P(
    NameMiddle, TagFamilyTable,
    ::testing::Values(Case{"<NAME_M(2,3)>", "abcdef.txt", "bc"}, Case{"<NAME_M(3,3)>", "abcdef.txt", "c"},
                      Case{"<NAME_M(0,2)>", "abcdef.txt", "ab"}, Case{"<NAME_M(4,0)>", "abcdef.txt", "def"},
                      Case{"<NAME_M(-2,-1)>", "abcdef.txt", "de"}, Case{"<NAME_M(9,12)>", "abcdef.txt", ""},
                      Case{"<NAME_M(5,99)>", "abcdef.txt", "ef"}, Case{"<NAME_M(1,)>", "abcdef.txt", "<ERROR>"},
                      Case{"<NAME_M(,2)>", "abcdef.txt", "<No_Number>"}, Case{"<NAME_M(1)>", "abcdef.txt", "<ERROR>"},
                      Case{"<NAME_M(1,2,3)>", "abcdef.txt", "<ERROR>"},
                      Case{"<NAME_M(a,2)>", "abcdef.txt", "<No_Number>"}));

INSTANTIATE_TEST_SUITE_P(Find, TagFamilyTable,
                         ::testing::Values(Case{"<NAME_L(find(\"-\"))>", "ab-cd-ef.txt", "ab-"},
                                           Case{"<NAME_L(find(\"-\",2))>", "ab-cd-ef.txt", "ab-cd-"},
                                           Case{"<NAME_L(find(\"-\",2,-1))>", "ab-cd-ef.txt", "ab-cd"},
                                           Case{"<NAME_M(find(\"-\",1,1),find(\"-\",2,-1))>", "ab-cd-ef.txt", "cd"},
                                           Case{"<NAME_L(find(\"-\",9))>", "ab-cd-ef.txt", ""},
                                           Case{"<NAME_L(find(\"\"))>", "ab-cd-ef.txt", "<No_Number>"},
                                           Case{"<NAME_L(find())>", "ab-cd-ef.txt", "<No_Number>"},
                                           Case{"<NAME_L(find(\"-\")+1)>", "ab-cd-ef.txt", "<No_Number>"},
                                           Case{"<NAME_L(FIND(\"-\"))>", "ab-cd-ef.txt", "ab-"},
                                           Case{"<NAME_L(find(\"(,)\"))>", "x(,)y.txt", "x("},
                                           Case{"<NAME_L(find(\".\"))>", "ab.cd.txt", "ab."},
                                           Case{"<NAME_L(find(\"aa\",2))>", "aaa.txt", "aa"},
                                           Case{"<NAME_L(find(\"t\"))>", "abc.txt", "abc"},
                                           Case{"<NAME_L(find(\"-\",x,y))>", "ab-cd.txt", "ab-"},
                                           Case{"<NAME_L(find(\"-\")>", "ab-cd.txt", "ab-"}));

INSTANTIATE_TEST_SUITE_P(
    NamePart, TagFamilyTable,
    ::testing::Values(Case{"<NAMEPART(\"_\")>", "a_b_c.txt", "a"}, Case{"<NAMEPART(\"_\",3)>", "a_b_c.txt", "c"},
                      Case{"<NAMEPART(\"_\",4)>", "a_b_c.txt", ""}, Case{"<NAMEPART(\"#\",1)>", "a_b_c.txt", ""},
                      Case{"<NAMEPART(\"\",1)>", "a_b_c.txt", ""}, Case{"<NAMEPART(_,2)>", "a_b_c.txt", "b"},
                      Case{"<NAMEPART(\"_\",x,y)>", "a _b_c.txt", "a"},
                      Case{"<NAMEPART(\"_\",1,-1)>", "a _b_c.txt", "a "}, Case{"<NAMEPART()>", "a_b_c.txt", "<ERROR>"},
                      Case{"<NAMEPART(\"_\",2,1,9)>", "a_b_c.txt", "b"},
                      Case{"<namepart(\"(\",2)>", "a(b(c.txt", "b"}));

INSTANTIATE_TEST_SUITE_P(
    Path, TagFamilyTable,
    ::testing::Values(Case{"<PATH>", "x.txt", "Rock"}, Case{"<path>", "x.txt", "Rock"},
                      Case{"<PATH_L(2)>", "x.txt", "Ro"}, Case{"<PATH_L(-1)>", "x.txt", "Rock"},
                      Case{"<PATH_L(x)>|<PATH_L(3)>", "x.txt", "<No_Number>|<No"}, Case{"<PATH_R(2)>", "x.txt", ""},
                      Case{"<PATH_R(2)>[<PATH_L(9)>]", "x.txt", "[Rock]"}, Case{"<PATH_M(2,3)>", "x.txt", "oc"},
                      Case{"<PATH_M(2,3)>-<PATH_M(1,1)>", "x.txt", "oc-o"},
                      Case{"<PATH_L(find(\"c\"))>", "x.txt", "Roc"}, Case{"<PATH_M(1)>", "x.txt", "<ERROR>"}));

INSTANTIATE_TEST_SUITE_P(
    CaseBrackets, TagFamilyTable,
    ::testing::Values(Case{"<UC><NAME></UC>", "straße.txt", "STRAßE"}, Case{"<LC>ÄÖÜ ŸX</LC>", "x.txt", "äöü ÿx"},
                      Case{"<1C>hELLO wORLD</1C>", "x.txt", "Hello world"}, Case{"<1C>.TXT</1C>", "x.txt", ".Txt"},
                      Case{"<WC>o'neil mc-donald_jr 2nd`x</WC>", "x.txt", "O'neil Mc-Donald_Jr 2Nd`x"},
                      Case{"<WC>élan vital</WC>", "x.txt", "Élan Vital"}, Case{"<SC>Hello Ω</SC>", "x.txt", "hELLO ω"},
                      Case{"<uc>a</Uc><uc>b</UC>", "x.txt", "AB"}, Case{"<UC>a<LC>B</LC>c</UC>", "x.txt", "AbC"},
                      Case{"</UC", "x.txt", "</UC"}));

}  // namespace
}  // namespace nomra::testing
