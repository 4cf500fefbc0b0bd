#include "presentation/links.h"

#include "platform/shell.h"

namespace kestrum {

namespace {

constexpr std::string_view subject_start = "TARVEX / KESTRUM - Customer Support - ";

void Hand_To_Shell(Session& session, const std::string& text, const std::string& address) {
    if (session.shell == nullptr || !session.shell->Open(text)) {
        session.Message(Box{.text = "Error Jumping to: " + address,
                            .title = "Warning",
                            .icon = Box_Icon::Exclamation});
    }
}

void Append_Part(std::string& text, std::string_view key, std::string_view value) {
    if (!value.empty()) {
        text.append(key).append(value);
    }
}

void Mail_To_Support(Session& session, std::string_view matter, std::string_view body) {
    Send_Mail(session, {.to = std::string(addresses::support_mail),
                        .subject = std::string(subject_start).append(matter),
                        .body = std::string(body)});
}

} // namespace

void Open_Web_Page(Session& session, const std::string& address) {
    if (!address.empty()) {
        Hand_To_Shell(session, address, address);
    }
}

std::string Mail_Text(const Mail& mail) {
    std::string text = "mailto:" + mail.to;
    Append_Part(text, "?subject=", mail.subject);
    Append_Part(text, "&cc=", mail.copy_to);
    Append_Part(text, "&bcc=", mail.blind_copy_to);
    Append_Part(text, "&body=", mail.body);
    for (std::size_t at = text.find('\r'); at != std::string::npos; at = text.find('\r', at)) {
        text.replace(at, 1, "%0A");
    }
    return text;
}

void Send_Mail(Session& session, const Mail& mail) {
    Hand_To_Shell(session, Mail_Text(mail), mail.to);
}

void Report_Problem(Session& session) {
    Mail_To_Support(session, "Problem Report",
                    "PLEASE ATTACH a print screen of What error message you got and a brief "
                    "description of what you were doing.");
}

void Request_Information(Session& session) {
    Mail_To_Support(session, "Information Request", "Please State What Information is Needed");
}

void Show_Cam_Page(Session& session) {
    Open_Web_Page(session, std::string(addresses::cam_page));
}

void Play_Wav_File(Session& session) {
    const auto chosen =
        session.dialogs.Choose_File({.filter = "WAV Files (*.wav)|*.wav|All Files (*.*)|*.*",
                                     .folder = session.surroundings.folder});
    if (!chosen || session.shell == nullptr || !session.shell->Play(chosen->path)) {
        session.Message("Problem with your \"WAV\" File");
    }
}

} // namespace kestrum
