// Any bytes as a mail server's replies and as a result file: the dialogue never
// crashes, takes a mail as delivered only after a "250" to its ".", and no file
// content can end the mail early or outgrow a server's line.
#include <cstdint>
#include <cstdlib>
#include <string>
#include <string_view>

#include "services/Ergebnisdatei.h"
#include "services/Smtpdialog.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* daten, std::size_t groesse) {
    using namespace services;
    const std::string_view bytes(reinterpret_cast<const char*>(daten), groesse);

    // The same bytes as a result file.
    const auto zeilen = zeilenVon(bytes);
    Mail mail{"a@b.de", "A", "t@b.de", "T", "Turnierwertung " + spielerVon(zeilen), mailrumpf(zeilen)};
    if (const auto nachricht = nachrichtBauen(mail, Zeitpunkt{2025, 7, 1, 12, 0, 0}, "Trumpona")) {
        const std::string& n = *nachricht;
        if (n.size() < 5 || n.compare(n.size() - 5, 5, "\r\n.\r\n") != 0) std::abort();
        if (n.find("\r\n.\r\n") != n.size() - 5) std::abort();
        std::size_t anfang = 0;
        for (std::size_t ende; (ende = n.find("\r\n", anfang)) != std::string::npos; anfang = ende + 2)
            if (ende - anfang > MaxMailzeile) std::abort();
    }

    // As the server's replies, cut into pieces at every 0xff byte.
    Antwortleser leser;
    Smtpdialog dialog(mail, "b.de", Zeitpunkt{}, "Trumpona");
    dialog.beginnen();
    int zuletzt = 0;
    std::size_t anfang = 0;
    while (anfang <= bytes.size()) {
        std::size_t ende = bytes.find('\xff', anfang);
        if (ende == std::string_view::npos) ende = bytes.size();
        for (const Antwort& a : leser.lesen(bytes.substr(anfang, ende - anfang))) {
            if (a.text.size() > Antwortleser::MaxZeile) std::abort();
            const bool vorher = dialog.angenommen();
            const int stufe = dialog.erledigt();
            dialog.antwort(a);
            if (!vorher && dialog.angenommen() && (stufe != 5 || a.code != 250)) std::abort();
            if (dialog.erledigt() < zuletzt) std::abort();
            zuletzt = dialog.erledigt();
        }
        anfang = ende + 1;
    }
    dialog.zeitUeberschritten();
    return 0;
}
