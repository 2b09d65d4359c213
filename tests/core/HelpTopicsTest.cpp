// The help as shipped: every topic that a form asks for is there, and every link leads somewhere.
#include "core/HelpTopics.h"

#include <set>

#include "core/Programs.h"
#include "tests/SuiteFixture.h"

namespace quillmetra {
namespace {

class HelpTopicsTest : public SuiteTest {};

TEST_F(HelpTopicsTest, TopicsAndLinksAreWhole) {
    const std::vector<HelpTopic> topics = ReadHelpTopics(SourceFolder() / "data" / "help");
    std::set<int> numbers;
    for (const HelpTopic& topic : topics) EXPECT_TRUE(numbers.insert(topic.Number).second) << topic.Number;
    for (const Program& program : Programs) EXPECT_TRUE(numbers.contains(program.HelpTopic)) << program.Title;
    for (const int form : {400, 410}) EXPECT_TRUE(numbers.contains(form));

    for (const HelpTopic& topic : topics) {
        SCOPED_TRACE(topic.Title);
        EXPECT_FALSE(topic.Title.empty());
        std::vector<const char*> parts = {"Limits"};
        const bool isMethod = topic.Number >= 420 && topic.Number < 428;
        if (topic.Number < 410 || isMethod) {
            parts.insert(parts.end(), {"What goes in", "What comes out"});
        }
        if (isMethod) parts.push_back("**References.**");
        for (const char* part : parts) EXPECT_NE(topic.Text.find(part), std::string::npos) << part;
        for (std::size_t link = 0; (link = topic.Text.find("](", link)) != std::string::npos; link += 2) {
            EXPECT_TRUE(numbers.contains(std::atoi(topic.Text.c_str() + link + 2)))
                << topic.Text.substr(link, 20);
        }
    }
}

TEST_F(HelpTopicsTest, WhatIsNoTopicIsLeftOut) {
    const auto write = [this](const char* name, const char* text) {
        std::ofstream(Folder / name, std::ios::binary) << text;
    };
    write("402-b.md", "# Second\r\ntext");
    write("401-a.md", "# First");
    write("403-no-heading.md", "text");
    write("404-empty.md", "");
    write("notes.md", "# Notes");
    write("abc-words.md", "# Words");
    const std::vector<HelpTopic> topics = ReadHelpTopics(Folder);
    ASSERT_EQ(topics.size(), 2U);
    EXPECT_EQ(topics[0].Title, "First");
    EXPECT_EQ(topics[1].Title, "Second");
    EXPECT_TRUE(ReadHelpTopics(Folder / "nowhere").empty());
}

}  // namespace
}  // namespace quillmetra
