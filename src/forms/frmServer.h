// A new database on a server: where it is, and the link to it in the place of a database file.
#pragma once

#include "forms/SuiteForm.h"
#include "platform/ServerLink.h"

namespace quillmetra {

class frmServer : public SuiteForm {
public:
    frmServer();

    void Load() override;
    void CloseBox() override { cmdCancel_Click(); }

    Label lblAbout{*this, "lblAbout",
                   "The records of several engineers on a PostgreSQL server. A small file TRDB.MDB leads "
                   "there; it holds "
                   "no password: the server's own log-in and libpq's password file serve."};
    Label lblHost{*this, "lblHost", "&Host"};
    TextBox txtHost{*this, "txtHost"};
    Label lblPort{*this, "lblPort", "P&ort"};
    TextBox txtPort{*this, "txtPort"};
    Label lblDatabase{*this, "lblDatabase", "&Database"};
    TextBox txtDatabase{*this, "txtDatabase"};
    Label lblSchema{*this, "lblSchema", "&Schema"};
    TextBox txtSchema{*this, "txtSchema"};
    Label lblUser{*this, "lblUser", "&User, if not that of the log-in"};
    TextBox txtUser{*this, "txtUser"};
    Label lblService{*this, "lblService", "Ser&vice of libpq, if there is one"};
    TextBox txtService{*this, "txtService"};
    CommandButton cmdOK{*this, "cmdOK", "&Create..."};
    CommandButton cmdCancel{*this, "cmdCancel", "Cancel"};

    void cmdOK_Click();
    void cmdCancel_Click();

private:
    ServerLink Typed() const;
    bool Make(const std::string& file);
};

}  // namespace quillmetra
