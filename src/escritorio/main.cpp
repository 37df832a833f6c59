#include "escritorio/programa.h"

int main(int argc, char** argv)
{
    kestrane::escritorio::Aplicacion aplicacion{argc, argv};
    return kestrane::escritorio::ejecutaPrograma(aplicacion, QCoreApplication::applicationDirPath(),
                                                 QStringLiteral("kestrane-listados"));
}
