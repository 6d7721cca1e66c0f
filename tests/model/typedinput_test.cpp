#include "typedinput.h"

#include <gtest/gtest.h>

using namespace orvelin;

TEST(AcceptTyped, EachFieldKeepsOnlyWhatItsFormsCanCarry) {
    const struct {
        TypedField field;
        const char* typed;
        const char* kept;
        bool noted;
    } cases[] = {
        {TypedField::Label, "Home\r\npage\nnow\rthen", "Home\\npage\\nnow\\nthen", false},
        {TypedField::Label, "say \"a|b\"", "say \"a|b\"",
         false}, // the label's encoding carries both
        {TypedField::Url, "a.html?x=1|2", "a.html?x=1%7C2", true},
        {TypedField::Url, "a.html\n", "a.html ", false},
        {TypedField::Text, "say \"hi\"|now\t", "say \"hi\"now", true},
        {TypedField::File, "my|pic.gif", "mypic.gif", true},
        {TypedField::Raw, "Ari|al\"><script>", "Arial><script>", true},
        {TypedField::Raw, "Arial", "Arial", false},
    };
    for (const auto& c : cases) {
        const TypedText out = acceptTyped(c.field, c.typed);
        EXPECT_EQ(out.text, c.kept) << c.typed;
        EXPECT_EQ(!out.note.empty(), c.noted) << c.typed;
    }
}

TEST(FirstCharacterReference, FindsWhatABrowserDecodesButNotTheAppletsOwnCodes) {
    EXPECT_EQ(firstCharacterReference("A&#124;B"), "&#124;");
    EXPECT_EQ(firstCharacterReference("A&#x7c B"), "&#x7c");
    EXPECT_EQ(firstCharacterReference("Tom &amp; Jerry"), "&amp;");
    EXPECT_EQ(firstCharacterReference("a&nbspb&y01c&y02 & d"), "");
    EXPECT_EQ(firstCharacterReference("&#;&"), "");
}
