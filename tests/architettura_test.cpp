// Keeps the folders of src/ and tools/ in their layers: who may include whom, and no window below ui/.
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <map>
#include <regex>
#include <set>
#include <string>
#include <vector>

namespace {

namespace fs = std::filesystem;
using Cartelle = std::set<std::string>;

/// What each program of tools/ may include.
const std::map<std::string, Cartelle> frecceStrumenti = {
    {"borcopia", {"common", "archive", "borverifica"}},
    {"borcrea", {"common", "archive", "document", "posting"}},
    {"borverifica", {"common", "archive", "document"}},
    {"borefattura", {"common", "archive", "document", "xmlcheck", "fatturapa", "borxmlcheck"}},
    {"borelenco", {"common", "archive", "register"}},
    {"borxmlcheck", {"common", "xmlcheck", "ui"}},
    {"borxpdf", {"common", "ui"}},
    {"lanciatore", {"common", "archive", "borcopia", "ui"}},
    {"tour", {"common", "ui", "app", "borcrea"}},
};

/// Who may include whom; every folder of src/ has its entry.
const std::map<std::string, Cartelle> frecce = {
    {"common", {}},
    {"archive", {"common"}},
    {"xmlcheck", {"common"}},
    {"document", {"common", "archive"}},
    {"register", {"common", "archive", "document"}},
    {"prospetti", {"common", "archive", "document"}},
    {"posting", {"common", "archive", "document"}},
    {"output", {"common", "archive", "document"}},
    {"einvoice", {"common", "archive", "document", "xmlcheck"}},
    {"fatturapa", {"common", "archive", "document", "xmlcheck"}},
    {"lotto", {"common", "archive", "document", "output", "xmlcheck", "einvoice", "fatturapa"}},
    {"ui",
     {"common", "archive", "document", "prospetti", "register", "posting", "output", "xmlcheck", "einvoice",
      "fatturapa", "lotto"}},
    {"app",
     {"common", "archive", "document", "prospetti", "register", "posting", "output", "xmlcheck", "einvoice",
      "fatturapa", "lotto", "ui"}},
};

struct Inclusione {
    std::string cartella; ///< folder of the including file
    std::string file;
    std::string nome; ///< what stands between the quotes or brackets
    bool traVirgolette;
};

/// The include lines of the files under `radice`, "src" or "tools".
std::vector<Inclusione> inclusioni(const std::string& radice) {
    static const std::regex include(R"(^\s*#\s*include\s*([<"])([^>"]+)[>"])");
    const fs::path src = fs::path(BOR_SOURCE_DIR) / radice;
    std::vector<Inclusione> inclusioni;
    for (const auto& voce : fs::recursive_directory_iterator(src)) {
        const fs::path& file = voce.path();
        if (file.extension() != ".h" && file.extension() != ".cpp")
            continue;
        const fs::path relativo = fs::relative(file, src);
        std::ifstream testo(file);
        std::smatch trovato;
        for (std::string linea; std::getline(testo, linea);)
            if (std::regex_search(linea, trovato, include))
                inclusioni.push_back(
                    {relativo.begin()->string(), relativo.string(), trovato[2], trovato[1] == "\""});
    }
    return inclusioni;
}

bool conFinestre(const std::string& cartella) {
    return cartella == "ui" || cartella == "app";
}

void verificaInclusioni(const std::string& radice, const std::map<std::string, Cartelle>& ammesse) {
    for (const Inclusione& i : inclusioni(radice)) {
        if (!i.traVirgolette)
            continue;
        const std::string meta = i.nome.substr(0, i.nome.find('/'));
        const auto sue = ammesse.find(i.cartella);
        ASSERT_NE(sue, ammesse.end()) << i.cartella << " is no layer";
        EXPECT_TRUE(meta == i.cartella || sue->second.contains(meta))
            << i.file << " may not include " << i.nome;
    }
}

} // namespace

TEST(Architettura, OgniCartellaIncludeSoloQuelleSottoDiSe) {
    ASSERT_GT(inclusioni("src").size(), 100U);
    ASSERT_GT(inclusioni("tools").size(), 50U);
    verificaInclusioni("src", frecce);
    verificaInclusioni("tools", frecceStrumenti);
}

/// A header of another Qt module is out of reach where only Qt Core is linked, unless its module is named.
TEST(Architettura, SottoLeVisteSoloQtCore) {
    for (const Inclusione& i : inclusioni("src")) {
        if (!conFinestre(i.cartella) && i.nome.starts_with("Qt") && i.nome.find('/') != std::string::npos) {
            EXPECT_TRUE(i.nome.starts_with("QtCore/")) << i.file << " may not include " << i.nome;
        }
    }
}

TEST(Architettura, OgniCartellaSiCollegaSoloAQuelleSottoDiSe) {
    static const std::regex libreria(R"((bor_|Qt6::)(\w+))");
    for (const auto& [cartella, ammesse] : frecce) {
        std::ifstream testo(fs::path(BOR_SOURCE_DIR) / "src" / cartella / "CMakeLists.txt");
        for (std::string linea; std::getline(testo, linea);)
            for (std::sregex_iterator m(linea.begin(), linea.end(), libreria), fine; m != fine; ++m) {
                const std::string nome = (*m)[2];
                const bool ammessa = (*m)[1] == "Qt6::"
                                         ? conFinestre(cartella) || nome == "Core"
                                         : nome == cartella || nome.starts_with(cartella + "_") ||
                                               nome == "library" || ammesse.contains(nome);
                EXPECT_TRUE(ammessa) << cartella << ": " << linea;
            }
    }
}
