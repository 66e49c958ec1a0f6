#include "Ergebnisupload.h"

#include <QCoreApplication>
#include <iostream>

#include "services/Ergebnisablage.h"
#include "services/Ergebnisversand.h"
#include "services/Mailkonto.h"
#include "services/Smtpclient.h"
#include "settings/Benutzerspeicher.h"

namespace app {

int ergebnisseSenden(const Aufruf& aufruf, int& argc, char** argv) {
    QCoreApplication::setApplicationName(QStringLiteral("Trumpona"));
    QCoreApplication::setOrganizationName(QStringLiteral("Trumpona"));
    QCoreApplication anwendung(argc, argv);

    // The configured account; the command line overrides what it names.
    settings::Benutzerspeicher speicher;
    services::Mailkonto konto = services::mailkontoLesen(speicher);
    if (!aufruf.smtpHost.empty()) konto.server = QString::fromStdString(aufruf.smtpHost);
    if (aufruf.smtpPort > 0) konto.port = aufruf.smtpPort;
    if (!aufruf.absender.empty()) konto.absender = QString::fromStdString(aufruf.absender);
    if (!aufruf.empfaenger.empty()) konto.empfaenger = QString::fromStdString(aufruf.empfaenger);
    const QString ordner =
        aufruf.ergebnisOrdner.empty() ? services::ergebnisordner() : QString::fromStdString(aufruf.ergebnisOrdner);

    services::Smtpclient client;
    services::Ergebnisversand versand(client);
    int status = 0;
    QObject::connect(&versand, &services::Ergebnisversand::gesendet, [](const QString& datei) {
        std::cout << datei.toStdString() << ": gesendet" << std::endl;
    });
    QObject::connect(&versand, &services::Ergebnisversand::behalten, [](const QString& datei, const QString& grund) {
        std::cout << datei.toStdString() << ": behalten (" << grund.toStdString() << ")" << std::endl;
    });
    // Nobody is there to answer: a failed file is kept for a later upload.
    QObject::connect(&versand, &services::Ergebnisversand::wiederholenFragen, &versand,
                     [&versand] { versand.wiederholen(false); });
    QObject::connect(&versand, &services::Ergebnisversand::meldung,
                     [](const QString& text) { std::cerr << "trumpona: " << text.toStdString() << std::endl; });
    QObject::connect(&versand, &services::Ergebnisversand::fertig, [&](int, int behalten) {
        status = behalten > 0 ? 1 : 0;
        QCoreApplication::exit(status);
    });
    if (!versand.alleSenden(ordner, konto)) return 1;
    // With nothing to send the upload is over before the loop runs.
    if (!versand.laeuft()) return status;
    return QCoreApplication::exec();
}

}  // namespace app
