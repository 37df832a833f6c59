#include "platform/report/preview/plegado.h"

#include <algorithm>

namespace kestrane::report {

namespace {

constexpr qsizetype MayorExpansion = 18; ///< into how many a single character may be taken apart

bool esMarca(QChar caracter)
{
    const auto categoria = caracter.category();
    return categoria == QChar::Mark_NonSpacing || categoria == QChar::Mark_Enclosing;
}

void anade(TextoPlegado& plegado, const QString& trozo, int origen)
{
    for (const QChar caracter : trozo.normalized(QString::NormalizationForm_KD).toCaseFolded()) {
        if (esMarca(caracter))
            continue;
        plegado.texto += caracter;
        plegado.origen.push_back(origen);
    }
}

/// Most texts: a letter stays a letter.
void anadeLlano(TextoPlegado& plegado, QChar caracter, int origen)
{
    plegado.texto += caracter.toLower();
    plegado.origen.push_back(origen);
}

} // namespace

TextoPlegado pliega(const QString& texto)
{
    TextoPlegado plegado;
    plegado.texto.reserve(texto.size());
    plegado.origen.reserve(texto.size() + 1);
    const int largo = int(texto.size());
    for (int i = 0; i < largo; ++i) {
        const bool par = texto[i].isHighSurrogate() && i + 1 < largo;
        if (texto[i].unicode() < 0x80)
            anadeLlano(plegado, texto[i], i);
        else
            anade(plegado, texto.mid(i, par ? 2 : 1), i);
        i += par ? 1 : 0;
    }
    plegado.origen.push_back(largo);
    return plegado;
}

std::vector<Trecho> encuentra(const QString& buscado, const QString& texto)
{
    if (texto.size() * MayorExpansion < buscado.size())
        return {};
    return encuentra(buscado, pliega(texto));
}

std::vector<Trecho> encuentra(const QString& buscado, const TextoPlegado& plegado)
{
    std::vector<Trecho> trechos;
    if (buscado.isEmpty())
        return trechos;
    qsizetype lugar = plegado.texto.indexOf(buscado);
    while (lugar >= 0) {
        const qsizetype fin = lugar + buscado.size();
        trechos.push_back({plegado.origen[lugar], std::max(plegado.origen[fin], plegado.origen[fin - 1] + 1)});
        lugar = plegado.texto.indexOf(buscado, fin);
    }
    return trechos;
}

} // namespace kestrane::report
