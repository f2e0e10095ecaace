# Completes the options of the suite's commands, and the folders, files and company codes that they take.

# _borlano_aziende FOLDER: the codes of the companies on a drive.
_borlano_aziende() {
    local cartella
    for cartella in "${1:-.}"/[Ss][Uu][Pp][Rr][Oo][Kk]/[Ss][Uu][Pp][Rr][Oo][Kk]/[Bb][Oo][Rr][Aa][Zz]0.[0-9][0-9][0-9]; do
        [ -d "$cartella" ] && printf '%s\n' "$((10#${cartella##*.}))"
    done
}

_borlano() {
    local parola=${COMP_WORDS[COMP_CWORD]} prima=${COMP_WORDS[COMP_CWORD - 1]} opzioni unita="" i
    case ${COMP_WORDS[0]##*/} in
    lanciatore) opzioni="--unita --azienda --dimostrazione --aiuto --help --version" ;;
    borcopia) opzioni="--unita --azienda --in --conserva --verifica --ripristina --elenca --avanzamento --aiuto --help --version" ;;
    borcrea) opzioni="--sorgente --unita --azienda --documenti --aiuto --help --version" ;;
    borverifica) opzioni="--unita --azienda --json --aiuto --help --version" ;;
    borefattura) opzioni="--unita --azienda --cartella --documento --json --aiuto --help --version" ;;
    borelenco) opzioni="--unita --azienda --dal --al --formato --colonne --aiuto --help --version" ;;
    borxmlcheck) opzioni="--json --mostra --html --aiuto --help --version" ;;
    borxpdf) opzioni="--anteprima --lotto --version" ;;
    *) return ;;
    esac
    for ((i = 1; i < COMP_CWORD; ++i)); do
        [ "${COMP_WORDS[i]}" = --unita ] && unita=${COMP_WORDS[i + 1]}
    done
    case $prima in
    --unita | --sorgente | --cartella | --in) mapfile -t COMPREPLY < <(compgen -d -- "$parola") ;;
    --azienda) mapfile -t COMPREPLY < <(compgen -W "$(_borlano_aziende "$unita")" -- "$parola") ;;
    --formato) mapfile -t COMPREPLY < <(compgen -W "csv json" -- "$parola") ;;
    --documenti | --documento | --conserva | --dal | --al | --colonne) COMPREPLY=() ;;
    *)
        if [[ $parola == -* ]]; then
            mapfile -t COMPREPLY < <(compgen -W "$opzioni" -- "$parola")
        else
            mapfile -t COMPREPLY < <(compgen -f -- "$parola")
        fi
        ;;
    esac
}
complete -o filenames -F _borlano lanciatore borcopia borcrea borverifica borefattura borelenco borxmlcheck borxpdf
