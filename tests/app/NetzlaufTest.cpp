#include <gtest/gtest.h>

#include "Netzlauf.h"

TEST(Netzlauf, AdresseMitPort) {
    struct Fall {
        std::string adresse;
        bool gueltig;
        std::string host;
        int port;
    };
    const std::vector<Fall> faelle{
        {"192.168.1.20", true, "192.168.1.20", 7001}, {"tisch:7002", true, "tisch", 7002},
        {"[::1]:7003", true, "::1", 7003},           {"[::1]", true, "::1", 7001},
        {"tisch:", false, "", 0},                    {"tisch:70000", false, "", 0},
        {"tisch:7a", false, "", 0},                  {":7001", false, "", 0},
        {"[::1", false, "", 0},                      {"", false, "", 0},
    };
    for (const Fall& f : faelle) {
        std::string host;
        int port = 0;
        EXPECT_EQ(app::adresseTeilen(f.adresse, host, port), f.gueltig) << f.adresse;
        if (!f.gueltig) continue;
        EXPECT_EQ(host, f.host);
        EXPECT_EQ(port, f.port);
    }
    engine::ProSitz<int> punkte;
    punkte[engine::Sitz(1)] = 3;
    punkte[engine::Sitz(4)] = -2;
    EXPECT_EQ(app::standZeile(punkte), "stand 1=3 2=0 3=0 4=-2");
}
