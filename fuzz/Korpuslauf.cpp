// Without libFuzzer (g++ builds) a fuzz target runs once over each file of its
// corpus, so the seeds stay valid and the harness keeps compiling.
#include <cstdint>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <string>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* daten, std::size_t groesse);

int main(int argc, char** argv) {
    int anzahl = 0;
    for (int i = 1; i < argc; ++i) {
        for (const auto& eintrag : std::filesystem::recursive_directory_iterator(argv[i])) {
            if (!eintrag.is_regular_file()) continue;
            std::ifstream datei(eintrag.path(), std::ios::binary);
            std::string inhalt(static_cast<std::size_t>(eintrag.file_size()), '\0');
            datei.read(inhalt.data(), static_cast<std::streamsize>(inhalt.size()));
            LLVMFuzzerTestOneInput(reinterpret_cast<const std::uint8_t*>(inhalt.data()), inhalt.size());
            ++anzahl;
        }
    }
    std::printf("%d Dateien geprüft\n", anzahl);
    return anzahl > 0 ? 0 : 1;
}
