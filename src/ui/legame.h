// What a widget shows and edits, asked from the form at each refresh and handed to it at each edit.
#pragma once

#include <functional>
#include <type_traits>

namespace bor {

template <class T>
struct Legame {
    std::function<T()> leggi;
    std::function<void(const T&)> scrivi;
};

/// Of a value that the form reads and changes by the members that lead to it.
template <class Form, class... Membri>
auto legame(Form& form, Membri... membri) {
    using T = std::remove_cvref_t<decltype(form.dato(membri...))>;
    return Legame<T>{[&form, membri...] { return form.dato(membri...); },
                     [&form, membri...](const T& valore) { form.cambia(valore, membri...); }};
}

} // namespace bor
