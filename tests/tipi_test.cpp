// No type name stands at two places of one namespace: a linker picks one of the two in silence.
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <map>
#include <regex>
#include <set>
#include <sstream>
#include <string>
#include <vector>

namespace {

namespace fs = std::filesystem;

constexpr auto senzaNome = "(anonymous)";

/// The text without remarks, literals and preprocessor lines, cut into names and single signs.
std::vector<std::string> parole(const fs::path& file) {
    std::ostringstream tutto;
    tutto << std::ifstream(file).rdbuf();
    static const std::regex inutile(
        R"re(//[^\n]*|/\*[^]*?\*/|R"(\w*)\([^]*?\)\1"|"(?:\\.|[^"\\\n])*"|'(?:\\.|[^'\\\n])+'(?!\d)|#[^\n]*)re");
    const std::string testo = std::regex_replace(tutto.str(), inutile, " ");
    static const std::regex parola(R"(\w+|::|\S)");
    std::vector<std::string> trovate;
    for (std::sregex_iterator m(testo.begin(), testo.end(), parola), fine; m != fine; ++m)
        trovate.push_back(m->str());
    return trovate;
}

/// The name that starts at `i`, "a::b" taken as one.
std::string nome(const std::vector<std::string>& frase, std::size_t i) {
    std::string n;
    for (; i < frase.size() && (frase[i] == "::" || std::isalpha(static_cast<unsigned char>(frase[i][0])));
         ++i)
        n += frase[i];
    return n;
}

struct Blocco {
    bool diTipo = false; ///< of a type
    std::string nome;    ///< empty for a function and the like
};

/// What the words before an opening brace open.
Blocco blocco(const std::vector<std::string>& frase) {
    static const std::set<std::string> tipi = {"struct", "class", "union", "enum"};
    for (std::size_t i = 0; i < frase.size(); ++i) {
        if (frase[i] == "namespace")
            return {false, i + 1 == frase.size() ? senzaNome : nome(frase, i + 1)};
        if (frase[i] == "(" || frase[i] == "=")
            break;
        if (tipi.contains(frase[i]) && (i == 0 || (frase[i - 1] != "<" && frase[i - 1] != ","))) {
            const bool enumClasse = i + 1 < frase.size() && tipi.contains(frase[i + 1]);
            return {true, nome(frase, i + (enumClasse ? 2 : 1))};
        }
    }
    return {};
}

/// The full names of the types that a file defines for others to see.
std::vector<std::string> tipiDefiniti(const fs::path& file) {
    std::vector<std::string> trovati;
    std::vector<Blocco> aperti;
    std::vector<std::string> frase;
    for (const std::string& p : parole(file)) {
        if (p == "{") {
            const Blocco nuovo = blocco(frase);
            std::string intero;
            bool visibile = nuovo.diTipo && !nuovo.nome.empty();
            for (const Blocco& b : aperti) {
                visibile = visibile && !b.nome.empty() && b.nome != senzaNome;
                intero += b.nome + "::";
            }
            if (visibile)
                trovati.push_back(intero + nuovo.nome);
            aperti.push_back(nuovo);
        } else if (p == "}" && !aperti.empty()) {
            aperti.pop_back();
        }
        if (p == "{" || p == "}" || p == ";")
            frase.clear();
        else
            frase.push_back(p);
    }
    EXPECT_TRUE(aperti.empty()) << file << " was not understood";
    return trovati;
}

} // namespace

TEST(Architettura, NessunNomeDiTipoStaInDuePosti) {
    std::map<std::string, fs::path> visti;
    for (const char* radice : {"src", "tools"})
        for (const auto& voce : fs::recursive_directory_iterator(fs::path(BOR_SOURCE_DIR) / radice)) {
            const fs::path& file = voce.path();
            if (file.extension() != ".h" && file.extension() != ".cpp")
                continue;
            for (const std::string& tipo : tipiDefiniti(file)) {
                const auto [gia, nuovo] = visti.emplace(tipo, file);
                EXPECT_TRUE(nuovo) << tipo << " stands in " << gia->second << " and in " << file;
            }
        }
    EXPECT_GT(visti.size(), 150U);
    EXPECT_TRUE(visti.contains("bor::Documento") && visti.contains("bor::crea::TabellaTesto") &&
                visti.contains("bor::pdf::Anteprima::Foglio"))
        << "the search is blind";
}
