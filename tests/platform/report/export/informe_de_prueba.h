#pragma once

#include "platform/report/export/tabla_informe.h"

#include <QIODevice>

#include <optional>

namespace kestrane::prueba {

/// Rows as a test says them, sorted as they come; groups are cut where their key columns change.
class FilasDePrueba final : public report::FilasInforme
{
public:
    QStringList nombres;
    std::vector<std::vector<Valor>> valores;
    std::vector<int> claves; ///< columns, of the groups from the outermost in

    [[nodiscard]] const QStringList& columnas() const override { return nombres; }
    [[nodiscard]] qsizetype filas() const override { return static_cast<qsizetype>(valores.size()); }
    [[nodiscard]] Valor valor(qsizetype fila, int columna) const override
    {
        return valores[static_cast<size_t>(fila)][static_cast<size_t>(columna)];
    }
    [[nodiscard]] int gruposQueEmpiezan(qsizetype fila) const override;
    [[nodiscard]] Valor agregado(qsizetype, int) const override { return {}; }
};

/// A report without a file and without a database: its layout and its rows.
class InformeDePrueba
{
public:
    explicit InformeDePrueba(const QStringList& columnas);

    void columna(const QString& titulo, const QString& valor, const report::FormatoValor& formato = {},
                 std::optional<report::FuncionAgregado> total = {});
    /// When the last column shows.
    void mostrar(const QString& condicion) { layout.columnas.back().mostrar = analiza(condicion); }
    /// An inner group each time; `por` is a column.
    void grupo(const QString& por, const QString& titulo = {});
    void fila(std::vector<Valor> valores) { filas.valores.push_back(std::move(valores)); }

    [[nodiscard]] report::TablaInforme tabla() const { return report::TablaInforme{{layout, filas, regional}}; }

    report::Layout layout;
    FilasDePrueba filas;
    ConfiguracionRegional regional = ConfiguracionRegional::espania();

private:
    report::Expresion analiza(const QString& texto);
};

/// Takes so many bytes and then no more, as a disk that is full.
class DiscoLleno final : public QIODevice
{
public:
    explicit DiscoLleno(qint64 caben = 0) : m_caben{caben} { open(WriteOnly); }

protected:
    qint64 readData(char*, qint64) override { return -1; }
    qint64 writeData(const char*, qint64 bytes) override;

private:
    qint64 m_caben;
};

} // namespace kestrane::prueba
