#pragma once

#include "core/session.h"

#include <string>
#include <string_view>

namespace kestrum {

/// Where the links of the program lead. Who hands the program out sets them here.
namespace addresses {
inline constexpr std::string_view support_mail = "support@kestrum.example";
inline constexpr std::string_view cam_page = "https://kestrum.example/volmark-cams";
} // namespace addresses

struct Mail {
    std::string to;
    std::string subject;
    std::string body;
    std::string copy_to{};
    std::string blind_copy_to{};
};

/// Shows a web page in the user's browser. An address that nothing takes is told in a box, an empty
/// one does nothing.
void Open_Web_Page(Session& session, const std::string& address);

/// The mail as one text. Mail programs have always been handed it with no more escaping than of the
/// line ends, whose line feeds stay.
[[nodiscard]] std::string Mail_Text(const Mail& mail);

/// Begins a mail in the user's mail program.
void Send_Mail(Session& session, const Mail& mail);

/// Begin a mail to the support: with a problem, or with a question.
void Report_Problem(Session& session);
void Request_Information(Session& session);

/// The page of the cams that the engine screen speaks of.
void Show_Cam_Page(Session& session);

/// Asks for a sound file and begins to play it. Failure and cancel are told in a box.
void Play_Wav_File(Session& session);

} // namespace kestrum
