<?xml version="1.0" encoding="UTF-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ca" sourcelanguage="es">
    <context>
        <name>frmListados</name>
        <message>
            <source>Listados</source>
            <translation>Llistats</translation>
        </message>
        <message>
            <source>Este listado puede tardar varios minutos espere ...</source>
            <translation>Aquest llistat pot trigar uns quants minuts espereu ...</translation>
        </message>
        <message>
            <source>Listados anteriores a la migracion</source>
            <translation>Llistats anteriors a la migració</translation>
        </message>
        <message>
            <source>Cuadricula</source>
            <translation>Quadrícula</translation>
        </message>
        <message>
            <source>SELECCIONE SU OPCION</source>
            <translation>SELECCIONEU LA VOSTRA OPCIÓ</translation>
        </message>
        <message>
            <source>Tamaño de la ventana</source>
            <translation>Mida de la finestra</translation>
        </message>
        <message>
            <source>Tamaño de la letra</source>
            <translation>Mida de la lletra</translation>
        </message>
        <message>
            <source>Colores</source>
            <translation>Colors</translation>
        </message>
        <message>
            <source>Ayuda (F1)</source>
            <translation>Ajuda (F1)</translation>
        </message>
        <message>
            <source>Salir</source>
            <translation>Surt</translation>
        </message>
        <message>
            <source>Cerrar</source>
            <translation>Tanca</translation>
        </message>
        <message>
            <source>Página de ayuda</source>
            <translation>Pàgina d'ajuda</translation>
        </message>
        <message>
            <source>Ayuda</source>
            <translation>Ajuda</translation>
        </message>
        <message>
            <source>Caja</source>
            <translation>Caixa</translation>
        </message>
        <message>
            <source>Listados Generales</source>
            <translation>Llistats Generals</translation>
        </message>
        <message>
            <source>Listados de Ventas</source>
            <translation>Llistats de Vendes</translation>
        </message>
        <message>
            <source>Estadisticas</source>
            <translation>Estadístiques</translation>
        </message>
        <message>
            <source>Graficos de venta</source>
            <translation>Gràfics de venda</translation>
        </message>
        <message>
            <source>Movimientos de Stock</source>
            <translation>Moviments d'Estoc</translation>
        </message>
        <message>
            <source>Agendas</source>
            <translation>Agendes</translation>
        </message>
        <message>
            <source>Bonos</source>
            <translation>Abonaments</translation>
        </message>
        <message>
            <source>Tallas y colores</source>
            <translation>Talles i colors</translation>
        </message>
        <message>
            <source>El formato de etiquetas que utiliza el programa es de 70 X 35 mm.</source>
            <translation>El format d'etiquetes que fa servir el programa és de 70 X 35 mm.</translation>
        </message>
        <message>
            <source>Continuar</source>
            <translation>Continua</translation>
        </message>
        <message>
            <source>Caja Diaria General</source>
            <translation>Caixa Diària General</translation>
        </message>
        <message>
            <source>Caja Diaria General Resumido</source>
            <translation>Caixa Diària General Resumida</translation>
        </message>
        <message>
            <source>Caja General por Empleados</source>
            <translation>Caixa General per Empleats</translation>
        </message>
        <message>
            <source>Caja Diaria Formato Ticket</source>
            <translation>Caixa Diària Format Tiquet</translation>
        </message>
        <message>
            <source>Re-Impresion de Facturas</source>
            <translation>Reimpressió de Factures</translation>
        </message>
        <message>
            <source>Clientes</source>
            <translation>Clients</translation>
        </message>
        <message>
            <source>Cumpleaños</source>
            <translation>Aniversaris</translation>
        </message>
        <message>
            <source>Clientes con Dinero en Deposito</source>
            <translation>Clients amb Diners en Dipòsit</translation>
        </message>
        <message>
            <source>Productos</source>
            <translation>Productes</translation>
        </message>
        <message>
            <source>Productos Bajo Minimos</source>
            <translation>Productes sota Mínims</translation>
        </message>
        <message>
            <source>Empleados</source>
            <translation>Empleats</translation>
        </message>
        <message>
            <source>Servicios</source>
            <translation>Serveis</translation>
        </message>
        <message>
            <source>Pack Spa</source>
            <translation>Pack Spa</translation>
        </message>
        <message>
            <source>Pack Servicios</source>
            <translation>Pack Serveis</translation>
        </message>
        <message>
            <source>Secciones</source>
            <translation>Seccions</translation>
        </message>
        <message>
            <source>Formas de Pago</source>
            <translation>Formes de Pagament</translation>
        </message>
        <message>
            <source>Proveedores</source>
            <translation>Proveïdors</translation>
        </message>
        <message>
            <source>Retiradas</source>
            <translation>Retirades</translation>
        </message>
        <message>
            <source>Etiquetas de Clientes</source>
            <translation>Etiquetes de Clients</translation>
        </message>
        <message>
            <source>Carteles</source>
            <translation>Cartells</translation>
        </message>
        <message>
            <source>Etiquetas de Productos</source>
            <translation>Etiquetes de Productes</translation>
        </message>
        <message>
            <source>Por Servicios</source>
            <translation>Per Serveis</translation>
        </message>
        <message>
            <source>Hist. X Clientes</source>
            <translation>Hist. X Clients</translation>
        </message>
        <message>
            <source>Por Pack Servicios</source>
            <translation>Per Pack Serveis</translation>
        </message>
        <message>
            <source>Por Productos</source>
            <translation>Per Productes</translation>
        </message>
        <message>
            <source>Hist. X Empleados</source>
            <translation>Hist. X Empleats</translation>
        </message>
        <message>
            <source>Impuestos</source>
            <translation>Impostos</translation>
        </message>
        <message>
            <source>Por Secciones</source>
            <translation>Per Seccions</translation>
        </message>
        <message>
            <source>Pendientes de Pago</source>
            <translation>Pendents de Pagament</translation>
        </message>
        <message>
            <source>Por Facturas/Horas</source>
            <translation>Per Factures/Hores</translation>
        </message>
        <message>
            <source>Productos Vendidos</source>
            <translation>Productes Venuts</translation>
        </message>
        <message>
            <source>Caja Totales por Día</source>
            <translation>Caixa Totals per Dia</translation>
        </message>
        <message>
            <source>Por Arreglos</source>
            <translation>Per Arranjaments</translation>
        </message>
        <message>
            <source>Ventas modo Albaran</source>
            <translation>Vendes mode Albarà</translation>
        </message>
        <message>
            <source>Descuentos Realizados</source>
            <translation>Descomptes Fets</translation>
        </message>
        <message>
            <source>Por Gastos</source>
            <translation>Per Despeses</translation>
        </message>
        <message>
            <source>Ocupacion por Horas</source>
            <translation>Ocupació per Hores</translation>
        </message>
        <message>
            <source>Clientes Perdidos</source>
            <translation>Clients Perduts</translation>
        </message>
        <message>
            <source>Ranking por Facturacion</source>
            <translation>Rànquing per Facturació</translation>
        </message>
        <message>
            <source>Fidelizacion</source>
            <translation>Fidelització</translation>
        </message>
        <message>
            <source>Ranking por Visitas</source>
            <translation>Rànquing per Visites</translation>
        </message>
        <message>
            <source>Visitas X Seccion</source>
            <translation>Visites X Secció</translation>
        </message>
        <message>
            <source>Ventas por horas</source>
            <translation>Vendes per hores</translation>
        </message>
        <message>
            <source>Numero visitas x mes</source>
            <translation>Nombre de visites x mes</translation>
        </message>
        <message>
            <source>Facturacion Anual</source>
            <translation>Facturació Anual</translation>
        </message>
        <message>
            <source>Facturacion Mensual</source>
            <translation>Facturació Mensual</translation>
        </message>
        <message>
            <source>Por Empleados</source>
            <translation>Per Empleats</translation>
        </message>
        <message>
            <source>Entrada de Productos</source>
            <translation>Entrada de Productes</translation>
        </message>
        <message>
            <source>Ventas</source>
            <translation>Vendes</translation>
        </message>
        <message>
            <source>Devoluciones de Ventas</source>
            <translation>Devolucions de Vendes</translation>
        </message>
        <message>
            <source>Regularizaciones</source>
            <translation>Regularitzacions</translation>
        </message>
        <message>
            <source>Inventarios</source>
            <translation>Inventaris</translation>
        </message>
        <message>
            <source>Devoluciones a Proveedor</source>
            <translation>Devolucions a Proveïdor</translation>
        </message>
        <message>
            <source>Traspasos a Consumo Interno</source>
            <translation>Traspassos a Consum Intern</translation>
        </message>
        <message>
            <source>Devoluciones de Consumo Interno a Almacen</source>
            <translation>Devolucions de Consum Intern a Magatzem</translation>
        </message>
        <message>
            <source>Baja de Productos de Consumo Interno</source>
            <translation>Baixa de Productes de Consum Intern</translation>
        </message>
        <message>
            <source>Citas Pendientes</source>
            <translation>Cites Pendents</translation>
        </message>
        <message>
            <source>Citas Anuladas</source>
            <translation>Cites Anul·lades</translation>
        </message>
        <message>
            <source>Citas Ausentes</source>
            <translation>Cites Absents</translation>
        </message>
        <message>
            <source>Bonos Caducados</source>
            <translation>Abonaments Caducats</translation>
        </message>
        <message>
            <source>Bonos Activos</source>
            <translation>Abonaments Actius</translation>
        </message>
        <message>
            <source>Marcas</source>
            <translation>Marques</translation>
        </message>
        <message>
            <source>Tallas</source>
            <translation>Talles</translation>
        </message>
        <message>
            <source>Talleres</source>
            <translation>Tallers</translation>
        </message>
        <message>
            <source>Arreglos</source>
            <translation>Arranjaments</translation>
        </message>
        <message>
            <source>General</source>
            <translation>General</translation>
        </message>
        <message>
            <source>Todos los clientes</source>
            <translation>Tots els clients</translation>
        </message>
        <message>
            <source>Codigo Postal</source>
            <translation>Codi Postal</translation>
        </message>
        <message>
            <source>Consumo</source>
            <translation>Consum</translation>
        </message>
        <message>
            <source>Numero visita</source>
            <translation>Nombre de visites</translation>
        </message>
        <message>
            <source>Mayor que</source>
            <translation>Més gran que</translation>
        </message>
        <message>
            <source>Menor que</source>
            <translation>Més petit que</translation>
        </message>
        <message>
            <source>Desde</source>
            <translation>Des de</translation>
        </message>
        <message>
            <source>Hasta</source>
            <translation>Fins a</translation>
        </message>
    </context>
    <context>
        <name>frmFechas</name>
        <message>
            <source>Fechas</source>
            <translation>Dates</translation>
        </message>
        <message>
            <source>Aceptar</source>
            <translation>Accepta</translation>
        </message>
        <message>
            <source>Salir</source>
            <translation>Surt</translation>
        </message>
        <message>
            <source>Completo</source>
            <translation>Complet</translation>
        </message>
        <message>
            <source>SELECCIONE EL FORMATO DEL LISTADO</source>
            <translation>SELECCIONEU EL FORMAT DEL LLISTAT</translation>
        </message>
        <message>
            <source>Desde</source>
            <translation>Des de</translation>
        </message>
        <message>
            <source>Hasta</source>
            <translation>Fins a</translation>
        </message>
        <message>
            <source>Hoy</source>
            <translation>Avui</translation>
        </message>
        <message>
            <source>Ayer</source>
            <translation>Ahir</translation>
        </message>
        <message>
            <source>Esta semana</source>
            <translation>Aquesta setmana</translation>
        </message>
        <message>
            <source>Este mes</source>
            <translation>Aquest mes</translation>
        </message>
        <message>
            <source>Mes anterior</source>
            <translation>Mes anterior</translation>
        </message>
        <message>
            <source>Este año</source>
            <translation>Aquest any</translation>
        </message>
    </context>
    <context>
        <name>FrmOrdenClientes</name>
        <message>
            <source>Ordenacion Clientes</source>
            <translation>Ordenació de Clients</translation>
        </message>
        <message>
            <source>Ordenado x</source>
            <translation>Ordenat per</translation>
        </message>
        <message>
            <source>Nombre</source>
            <translation>Nom</translation>
        </message>
        <message>
            <source>Fecha de Alta</source>
            <translation>Data d'Alta</translation>
        </message>
        <message>
            <source>Cumpleaños</source>
            <translation>Aniversaris</translation>
        </message>
        <message>
            <source>Ultima Visita</source>
            <translation>Última Visita</translation>
        </message>
        <message>
            <source>Apellidos</source>
            <translation>Cognoms</translation>
        </message>
        <message>
            <source>Solo Clientes con E-Mail</source>
            <translation>Només Clients amb E-Mail</translation>
        </message>
        <message>
            <source>Salir</source>
            <translation>Surt</translation>
        </message>
    </context>
    <context>
        <name>frmOrdenServicios</name>
        <message>
            <source>Ordenacion de Servicios</source>
            <translation>Ordenació de Serveis</translation>
        </message>
        <message>
            <source>Ordenado x</source>
            <translation>Ordenat per</translation>
        </message>
        <message>
            <source>Nombre</source>
            <translation>Nom</translation>
        </message>
        <message>
            <source>Seccion</source>
            <translation>Secció</translation>
        </message>
        <message>
            <source>Codigo</source>
            <translation>Codi</translation>
        </message>
        <message>
            <source>Salir</source>
            <translation>Surt</translation>
        </message>
    </context>
    <context>
        <name>frmMeses</name>
        <message>
            <source>Listado x Meses</source>
            <translation>Llistat x Mesos</translation>
        </message>
        <message>
            <source>SELECCIONE EL MES DEL GRAFICO</source>
            <translation>SELECCIONEU EL MES DEL GRÀFIC</translation>
        </message>
        <message>
            <source>SELECCIONE EL AÑO DEL GRAFICO</source>
            <translation>SELECCIONEU L'ANY DEL GRÀFIC</translation>
        </message>
        <message>
            <source>Mes anterior</source>
            <translation>Mes anterior</translation>
        </message>
        <message>
            <source>Mes siguiente</source>
            <translation>Mes següent</translation>
        </message>
        <message>
            <source>Mes</source>
            <translation>Mes</translation>
        </message>
        <message>
            <source>Año</source>
            <translation>Any</translation>
        </message>
        <message>
            <source>Año anterior</source>
            <translation>Any anterior</translation>
        </message>
        <message>
            <source>Año siguiente</source>
            <translation>Any següent</translation>
        </message>
        <message>
            <source>Completo</source>
            <translation>Complet</translation>
        </message>
        <message>
            <source>Aceptar</source>
            <translation>Accepta</translation>
        </message>
        <message>
            <source>Salir</source>
            <translation>Surt</translation>
        </message>
    </context>
    <context>
        <name>frmHistoricoXClientes</name>
        <message>
            <source>Historico x Clientes</source>
            <translation>Històric x Clients</translation>
        </message>
        <message>
            <source>Desde</source>
            <translation>Des de</translation>
        </message>
        <message>
            <source>Hasta</source>
            <translation>Fins a</translation>
        </message>
        <message>
            <source>Hoy</source>
            <translation>Avui</translation>
        </message>
        <message>
            <source>Ayer</source>
            <translation>Ahir</translation>
        </message>
        <message>
            <source>Esta semana</source>
            <translation>Aquesta setmana</translation>
        </message>
        <message>
            <source>Este mes</source>
            <translation>Aquest mes</translation>
        </message>
        <message>
            <source>Mes anterior</source>
            <translation>Mes anterior</translation>
        </message>
        <message>
            <source>Este año</source>
            <translation>Aquest any</translation>
        </message>
        <message>
            <source>Completo</source>
            <translation>Complet</translation>
        </message>
        <message>
            <source>Formato Ticket</source>
            <translation>Format Tiquet</translation>
        </message>
        <message>
            <source>Todas las Secciones</source>
            <translation>Totes les Seccions</translation>
        </message>
        <message>
            <source>Productos</source>
            <translation>Productes</translation>
        </message>
        <message>
            <source>Servicios</source>
            <translation>Serveis</translation>
        </message>
        <message>
            <source>Ambos</source>
            <translation>Tots dos</translation>
        </message>
        <message>
            <source>Aceptar</source>
            <translation>Accepta</translation>
        </message>
        <message>
            <source>Salir</source>
            <translation>Surt</translation>
        </message>
    </context>
    <context>
        <name>frmHistoricoXEmpleados</name>
        <message>
            <source>Historico x Empleados</source>
            <translation>Històric x Empleats</translation>
        </message>
        <message>
            <source>Desde</source>
            <translation>Des de</translation>
        </message>
        <message>
            <source>Hasta</source>
            <translation>Fins a</translation>
        </message>
        <message>
            <source>Hoy</source>
            <translation>Avui</translation>
        </message>
        <message>
            <source>Ayer</source>
            <translation>Ahir</translation>
        </message>
        <message>
            <source>Esta semana</source>
            <translation>Aquesta setmana</translation>
        </message>
        <message>
            <source>Este mes</source>
            <translation>Aquest mes</translation>
        </message>
        <message>
            <source>Mes anterior</source>
            <translation>Mes anterior</translation>
        </message>
        <message>
            <source>Este año</source>
            <translation>Aquest any</translation>
        </message>
        <message>
            <source>Completo</source>
            <translation>Complet</translation>
        </message>
        <message>
            <source>Formato Ticket</source>
            <translation>Format Tiquet</translation>
        </message>
        <message>
            <source>SELECCIONE EL EMPLEADO</source>
            <translation>SELECCIONEU L'EMPLEAT</translation>
        </message>
        <message>
            <source>Un Empleado</source>
            <translation>Un Empleat</translation>
        </message>
        <message>
            <source>Todos los Empleados</source>
            <translation>Tots els Empleats</translation>
        </message>
        <message>
            <source>COMO DESEA ESTE LISTADO</source>
            <translation>COM VOLEU AQUEST LLISTAT</translation>
        </message>
        <message>
            <source>Listado Detallado</source>
            <translation>Llistat Detallat</translation>
        </message>
        <message>
            <source>Listado Totalizado</source>
            <translation>Llistat Totalitzat</translation>
        </message>
        <message>
            <source>Volver</source>
            <translation>Torna</translation>
        </message>
        <message>
            <source>EMPLEADO SELECCIONADO: </source>
            <translation>EMPLEAT SELECCIONAT: </translation>
        </message>
        <message>
            <source>Aceptar</source>
            <translation>Accepta</translation>
        </message>
        <message>
            <source>Salir</source>
            <translation>Surt</translation>
        </message>
    </context>
    <context>
        <name>frmParar</name>
        <message>
            <source>Listados</source>
            <translation>Llistats</translation>
        </message>
        <message>
            <source>Generando Reporte</source>
            <translation>S'està generant l'informe</translation>
        </message>
    </context>
    <context>
        <name>frmEsperar</name>
        <message>
            <source>Listados</source>
            <translation>Llistats</translation>
        </message>
        <message>
            <source>Generando Reporte</source>
            <translation>S'està generant l'informe</translation>
        </message>
        <message>
            <source>formulario utilizado para dar tiempo a carga los report</source>
            <translation>formulari utilitzat per donar temps a carregar els report</translation>
        </message>
    </context>
</TS>
