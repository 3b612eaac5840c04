// Where the frame sends a user who looks for help: the help file, the maker, the about box.
#include "about/about_dialog.h"
#include "about/logic/help_topics.h"
#include "about/support.h"
#include "app/main_frame.h"
#include "framework/centred_message_box.h"
#include "framework/scoped_flag.h"

namespace korvane::app {

void CMainFrame::OpenHelp(std::wstring_view topic, HWND asker) {
    if (help_.Show(topic, barFont_.Get())) return;
    // The key for help also arrives from the message itself.
    if (helpFailureShown_) return;
    const fw::ScopedFlag shown{helpFailureShown_};
    const auto tell = [asker] { fw::ShowMessageById(asker, IDS_HELP_FAILED, MB_ICONEXCLAMATION); };
    // The flag of a dialog is set for as long as it is open, and the end of a scope would clear it.
    if (asker != Handle()) return tell();
    const fw::ScopedFlag modal{modalMessageOpen_};
    tell();
}

void CMainFrame::OnHelp(const fw::Message&) {
    // F1 asks for help whatever is held down with it, and with Ctrl it is a command that has opened the help already.
    if (::GetKeyState(VK_CONTROL) < 0) return;
    OpenHelp(about::help_topic::kContents, Handle());
}

void CMainFrame::ShowAboutBox() {
    const fw::ScopedFlag modal{modalMessageOpen_};
    about::CAboutDialog box{{.versionText = versionText_, .smallIcon = smallIcon_.Get()}};
    // How it was closed does not matter, and a box that could not be set up has said so.
    static_cast<void>(box.ShowModal(Handle()));
}

void CMainFrame::OpenSupport(UINT command) {
    INT_PTR result = 0;
    switch (command) {
    case ID_ONLINE_DOCUMENTS:
        result = about::OpenOnlineDocuments();
        break;
    case ID_SEND_MAIL: {
        const fw::ScopedFlag modal{modalMessageOpen_};
        result = about::SendSupportMail(Handle(), versionText_);
        break;
    }
    default:
        result = about::OpenAuthorSite();
        break;
    }
    ReportStart(result, fw::Centring::kOnOwner);
}

} // namespace korvane::app
