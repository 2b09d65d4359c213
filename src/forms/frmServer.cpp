// See frmServer.h.
#include "forms/frmServer.h"

#include <array>
#include <string>
#include <utility>

#include "forms/ColourSchemes.h"
#include "forms/frmTRProg.h"
#include "platform/Dialogs.h"
#include "platform/Forms.h"
#include "platform/NumberText.h"
#include "platform/TextFiles.h"
#include "records/RecordFiles.h"

namespace quillmetra {

namespace {

struct LinkBox {
    TextBox frmServer::*Box;
    Label frmServer::*Name;
    std::string ServerLink::*Part;
};
constexpr std::array LinkBoxes = {
    LinkBox{&frmServer::txtHost, &frmServer::lblHost, &ServerLink::Host},
    LinkBox{&frmServer::txtPort, &frmServer::lblPort, &ServerLink::Port},
    LinkBox{&frmServer::txtDatabase, &frmServer::lblDatabase, &ServerLink::Database},
    LinkBox{&frmServer::txtSchema, &frmServer::lblSchema, &ServerLink::Schema},
    LinkBox{&frmServer::txtUser, &frmServer::lblUser, &ServerLink::User},
    LinkBox{&frmServer::txtService, &frmServer::lblService, &ServerLink::Service}};
constexpr std::size_t LongestText = 200;

}  // namespace

frmServer::frmServer() : SuiteForm("frmServer") {
    SetCaption("New database on a server");
    DefaultButton = &cmdOK;
    CancelButton = &cmdCancel;
    lblAbout.ColourGroup = 1;
    for (const LinkBox& each : LinkBoxes) {
        (this->*each.Box).Describe(&(this->*each.Name));
        (this->*each.Box).ColourGroup = 2;
        (this->*each.Box).MaxLength = LongestText;
        (this->*each.Name).ColourGroup = 1;
    }
    cmdOK.SetToolTip("Asks for the place of the link and makes what the server does not have yet");
    cmdOK.Click = [this] { cmdOK_Click(); };
    cmdCancel.Click = [this] { cmdCancel_Click(); };
}

void frmServer::Load() {
    ApplyColours(*this);
    txtSchema.SetText(UsualSchema);
}

ServerLink frmServer::Typed() const {
    ServerLink link;
    for (const LinkBox& each : LinkBoxes) link.*each.Part = Trim((this->*each.Box).Text());
    return link;
}

// What the server refuses can be mended here and tried again.
bool frmServer::Make(const std::string& file) {
    try {
        const BusyPointer busy;
        MakeServerDatabase(file, Typed());
        return true;
    } catch (const RuntimeError& error) {
        Tell(error.Description, Caption(), Icon::Stop);
        return false;
    }
}

void frmServer::cmdOK_Click() {
    if (const std::string fault = FaultOfLink(Typed()); !fault.empty()) {
        Tell("The link to the server is not complete\n" + fault, Caption());
        return;
    }
    const std::string file = AskDatabaseFile(true);
    if (file.empty()) return;
    if (FileExists(file) &&
        !AskYesNo("A link to the server takes the place of\n" + file + "\nWhat this file holds is lost\nOK?",
                  Caption(), Icon::None, Answer::No)) {
        return;
    }
    auto& browser = static_cast<frmTRProg&>(LoadForm("frmTRProg"));
    browser.cmdDBClose_Click();
    if (!Make(file)) return;
    Tell("TRDB.MDB on " + FolderOf(file) + "\nleads to " + Typed().Words(), Caption());
    UnloadForm(Name());
    browser.OpenByName(file);
}

void frmServer::cmdCancel_Click() { UnloadForm(Name()); }

}  // namespace quillmetra
