#include "corpus/frontera.h"

namespace kestrane::prueba {

bool seRehusa(const Respuesta& respuesta)
{
    return respuesta.error.find("(posición ") != std::string::npos;
}

Respuesta respuestaDe(const FormaDeSentencia& forma, int tamano, TiendaCorpus& tienda)
{
    return tienda.ejecuta(consultaDe(forma.sentencia(tamano)));
}

Frontera fronteraDe(const FormaDeSentencia& forma, TiendaCorpus& tienda)
{
    int pasa = 0;
    int rehusada = forma.maximo;
    while (rehusada - pasa > 1) {
        const int medio = (pasa + rehusada) / 2;
        (seRehusa(respuestaDe(forma, medio, tienda)) ? rehusada : pasa) = medio;
    }
    return {pasa, respuestaDe(forma, pasa, tienda), respuestaDe(forma, pasa + 1, tienda).error};
}

} // namespace kestrane::prueba
