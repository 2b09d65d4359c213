// Tests that need a server: its database, roles, and what another program does meanwhile.
#pragma once

#include <cstdio>
#include <cstdlib>
#include <memory>
#include <string>

#include "tests/records/RecordFixture.h"

namespace quillmetra {

class ServerTest : public RecordTest {
protected:
    void SetUp() override {
        if (!OnServer()) GTEST_SKIP() << "played by records_on_a_server";
    }

    std::string Schema() const { return ReadServerLink(File()).Schema; }

    // What psql prints for a statement, as whoever owns the server.
    static std::string Sql(const std::string& sql) {
        FILE* const psql = popen(("psql -XAtqc \"" + sql + "\" 2>&1").c_str(), "r");
        std::string text;
        for (int c = 0; (c = std::fgetc(psql)) != EOF;) text += static_cast<char>(c);
        pclose(psql);
        return text;
    }

    // Another program changes the head of a record.
    static void ChangeHead(const std::string& tag, const char* field, const std::string& text) {
        const std::unique_ptr<Database> database = OpenRecords(Suite.DatabaseFile);
        Recordset heads(*database, HeadTable().Shape);
        heads.Index("Tag_Number");
        ASSERT_TRUE(heads.Seek(tag));
        heads.Edit();
        heads.Set(field, text);
        heads.Update();
    }

    // What a database is asked for when it is opened as it stands; empty when it opens.
    std::string Refusal() const {
        try {
            OpenRecords(Suite.DatabaseFile);
        } catch (const RuntimeError& error) {
            return error.Description;
        }
        return "";
    }

    // A link to the same records as another role, which has the rights that are granted.
    void BecomeRole(const std::string& name, const std::string& grants) const {
        ServerLink link = ReadServerLink(File());
        Sql("DROP OWNED BY " + name);
        Sql("DROP ROLE " + name);
        Sql("CREATE ROLE " + name + " LOGIN PASSWORD '" + std::getenv("PGPASSWORD") + "'");
        Sql("GRANT USAGE ON SCHEMA " + link.Schema + " TO " + name + "; GRANT " + grants +
            " ON ALL TABLES IN SCHEMA " + link.Schema + " TO " + name);
        link.User = name;
        WriteServerLink(File(), link);
    }
};

}  // namespace quillmetra
