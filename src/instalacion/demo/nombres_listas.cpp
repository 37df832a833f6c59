#include "instalacion/demo/nombres.h"

namespace kestrane::demo {

namespace {

constexpr QStringView mujeres[] = {
    u"María Carmen", u"Ana",        u"Carmen",      u"María",  u"Isabel",     u"Laura",       u"Cristina",  u"Marta",
    u"Lucía",        u"Paula",      u"Sara",        u"Elena",  u"Raquel",     u"Pilar",       u"Dolores",   u"Teresa",
    u"Rosario",      u"Mercedes",   u"Beatriz",     u"Silvia", u"Nuria",      u"Patricia",    u"Sonia",     u"Rocío",
    u"Inés",         u"Irene",      u"Alba",        u"Andrea", u"Julia",      u"Claudia",     u"Alicia",    u"Eva",
    u"Rosa",         u"Concepción", u"Encarnación", u"Josefa", u"Antonia",    u"Francisca",   u"Manuela",   u"Ángela",
    u"Begoña",       u"Montserrat", u"Verónica",    u"Miriam", u"Natalia",    u"Lorena",      u"Esther",    u"Gloria",
    u"Consuelo",     u"Amparo",     u"Yolanda",     u"Susana", u"Noelia",     u"Carolina",    u"Vanesa",    u"Marina",
    u"Olga",         u"Victoria",   u"Blanca",      u"Celia",  u"Aurora",     u"Lidia",       u"Sofía",     u"Daniela",
    u"Martina",      u"Valeria",    u"Adriana",     u"Carla",  u"María José", u"María Luisa", u"Ana Belén", u"Inmaculada"};

constexpr QStringView hombres[] = {
    u"Antonio",  u"José",    u"Manuel",    u"Francisco", u"David",     u"Juan",       u"Javier",  u"Daniel",   u"José Antonio",
    u"Carlos",   u"Jesús",   u"Alejandro", u"Miguel",    u"Rafael",    u"Pedro",      u"Ángel",   u"Pablo",    u"Sergio",
    u"Fernando", u"Jorge",   u"Luis",      u"Alberto",   u"Álvaro",    u"Diego",      u"Adrián",  u"Raúl",     u"Iván",
    u"Rubén",    u"Enrique", u"Óscar",     u"Ramón",     u"Vicente",   u"Andrés",     u"Joaquín", u"Santiago", u"Víctor",
    u"Eduardo",  u"Mario",   u"Roberto",   u"Jaime",     u"Marcos",    u"Ignacio",    u"Hugo",    u"Alfonso",  u"Salvador",
    u"Ricardo",  u"Emilio",  u"Guillermo", u"Gabriel",   u"Julián",    u"Tomás",      u"Gonzalo", u"Agustín",  u"Nicolás",
    u"Samuel",   u"Félix",   u"Martín",    u"Lucas",     u"José Luis", u"Juan Carlos"};

constexpr QStringView familias[] = {
    u"García",  u"Rodríguez", u"González", u"Fernández", u"López",     u"Martínez",  u"Sánchez", u"Pérez",   u"Gómez",
    u"Martín",  u"Jiménez",   u"Ruiz",     u"Hernández", u"Díaz",      u"Moreno",    u"Muñoz",   u"Álvarez", u"Romero",
    u"Alonso",  u"Gutiérrez", u"Navarro",  u"Torres",    u"Domínguez", u"Vázquez",   u"Ramos",   u"Gil",     u"Ramírez",
    u"Serrano", u"Blanco",    u"Molina",   u"Morales",   u"Suárez",    u"Ortega",    u"Delgado", u"Castro",  u"Ortiz",
    u"Rubio",   u"Marín",     u"Sanz",     u"Núñez",     u"Iglesias",  u"Medina",    u"Garrido", u"Cortés",  u"Castillo",
    u"Santos",  u"Lozano",    u"Guerrero", u"Cano",      u"Prieto",    u"Méndez",    u"Cruz",    u"Calvo",   u"Gallego",
    u"Vidal",   u"León",      u"Márquez",  u"Herrera",   u"Peña",      u"Flores",    u"Cabrera", u"Campos",  u"Vega",
    u"Fuentes", u"Carrasco",  u"Diez",     u"Caballero", u"Reyes",     u"Nieto",     u"Aguilar", u"Pascual", u"Santana",
    u"Herrero", u"Lorenzo",   u"Montero",  u"Hidalgo",   u"Giménez",   u"Ibáñez",    u"Ferrer",  u"Durán",   u"Santiago",
    u"Benítez", u"Mora",      u"Vicente",  u"Vargas",    u"Arias",     u"Carmona",   u"Crespo",  u"Román",   u"Pastor",
    u"Soto",    u"Sáez",      u"Velasco",  u"Moya",      u"Soler",     u"Parra",     u"Esteban", u"Bravo",   u"Gallardo",
    u"Rojas",   u"Pardo",     u"Merino",   u"Franco",    u"Espinosa",  u"Izquierdo", u"Lara",    u"Rivas",   u"Silva",
    u"Rivera",  u"Casado",    u"Arroyo",   u"Redondo",   u"Camacho",   u"Rey",       u"Vera",    u"Otero",   u"Luque",
    u"Galán",   u"Montes",    u"Ríos",     u"Sierra",    u"Segura",    u"Carrillo",  u"Marcos",  u"Martí",   u"Soriano",
    u"Mendoza", u"Bernal",    u"Robles",   u"Palacios"};

constexpr QStringView vias[] = {u"Calle Mayor",
                                u"Calle Real",
                                u"Avenida de la Constitución",
                                u"Plaza de España",
                                u"Calle del Sol",
                                u"Calle San Juan",
                                u"Calle Cervantes",
                                u"Paseo de la Alameda",
                                u"Calle Nueva",
                                u"Calle de la Iglesia",
                                u"Avenida de Andalucía",
                                u"Calle Goya",
                                u"Calle Velázquez",
                                u"Ronda Norte",
                                u"Calle de los Olivos",
                                u"Calle Santa Ana",
                                u"Travesía del Río",
                                u"Calle Molino",
                                u"Avenida del Mar",
                                u"Calle Doctor Fleming",
                                u"Calle Gran Capitán",
                                u"Calle San Antonio",
                                u"Calle de la Fuente",
                                u"Plaza del Mercado",
                                u"Calle Miguel Hernández",
                                u"Camino Viejo",
                                u"Calle del Carmen",
                                u"Calle Quevedo",
                                u"Avenida de la Paz",
                                u"Calle Lope de Vega",
                                u"Calle Huertas",
                                u"Calle Ancha",
                                u"Calle Juan Ramón Jiménez",
                                u"Calle de las Flores",
                                u"Paseo de la Estación"};

constexpr Poblacion pueblos[] = {
    {u"Valdeazahar", u"Valencia", u"46910", u"961"},        {u"Valdeazahar", u"Valencia", u"46911", u"961"},
    {u"Valdeazahar", u"Valencia", u"46912", u"961"},        {u"Puerto Alegre", u"Valencia", u"46560", u"962"},
    {u"Torrenueva del Río", u"Valencia", u"46270", u"962"}, {u"Alquería Blanca", u"Castellón", u"12540", u"964"},
    {u"Fuente la Rosa", u"Alicante", u"03690", u"965"},     {u"Monteolivar", u"Valencia", u"46185", u"961"}};

constexpr QStringView establecimientos[] = {
    u"Centro",      u"Gran Centro",  u"Norte",        u"Zona Norte",   u"Puerto",      u"Centro Sur",   u"Sur",        u"Estación",
    u"Plaza Mayor", u"Mercado",      u"Norte 2",      u"Alameda",      u"Universidad", u"Las Fuentes",  u"San Isidro", u"Gran Vía",
    u"El Pinar",    u"Campo Grande", u"Nuevo Puerto", u"Los Olivos",   u"Santa Marta", u"Miraflores",   u"La Paz",     u"El Carmen",
    u"Torrenueva",  u"Monteolivar",  u"Ensanche",     u"Polígono Sur", u"Arrabal",     u"Huertas",      u"El Molino",  u"Catedral",
    u"Malecón",     u"Hospital",     u"Parque",       u"Parque Norte", u"Las Rosas",   u"Vista Alegre", u"San Roque",  u"La Marina",
    u"Ribera",      u"Puerta Nueva", u"Alcázar",      u"Jardines",     u"Los Arcos",   u"La Ermita",    u"Buenavista", u"El Faro",
    u"Ronda",       u"Aeropuerto"};

} // namespace

std::span<const QStringView> nombresDeMujer()
{
    return mujeres;
}

std::span<const QStringView> nombresDeHombre()
{
    return hombres;
}

std::span<const QStringView> apellidos()
{
    return familias;
}

std::span<const QStringView> calles()
{
    return vias;
}

std::span<const Poblacion> poblaciones()
{
    return pueblos;
}

std::span<const QStringView> nombresDeTienda()
{
    return establecimientos;
}

} // namespace kestrane::demo
