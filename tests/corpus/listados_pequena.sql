# The reports database after a report, one insert a line.

# Second half of the key of the running copy.
Insert into listadostemporal (list1) values ('1')

# Rows of the last report: sellers of the general cash, in the order of their entry.
Insert into informes (texto1,TEXTO20,texto21,texto22,texto33,TEXTO34,TEXTO35,numerico1,numerico2,numerico3,numerico8,numerico19,Fecha1,fecha2,fecha3,fecha4) values ('Servicios','Íñigo N','7','2','Tienda = Centro','Calle Mayor, 1','Peluquería Ñandú',90.75,0,30.25,2,100.25,#03/01/2024#,#03/31/2024#,#03/15/2024#,#12/30/1899 9:05:00#)
Insert into informes (texto1,texto2,TEXTO20,texto21,texto22,texto33,TEXTO34,TEXTO35,numerico1,numerico2,numerico3,numerico8,numerico19,Fecha1,fecha2,fecha3,memo1) values ('Servicios','Pack Servicios','Ana L','3','2','Tienda = Centro','Calle Mayor, 1','Peluquería Ñandú',-12.5,121,60.5,2,100.25,#03/01/2024#,#03/31/2024#,#03/15/2024#,'Nota larga')
Insert into informes (texto1,TEXTO20,texto21,texto22,numerico1,numerico8,numerico19,Fecha1,fecha2) values ('Servicios','ompartida,Ana L,Íñigo N','1,3,7','3',30.25,2,100.25,#03/01/2024#,#03/31/2024#)
Insert into informes (TEXTO20,texto21,texto22,texto33,TEXTO34,TEXTO35,numerico3,numerico8,numerico19,Fecha1,fecha2,memo1) values ('Ventas Compartidas','-1','9','Tienda = ','Calle Mayor, 1','Peluquería Ñandú',60.5,2,100.25,#03/01/2024#,#03/31/2024#,'')
Insert into informes (texto1,TEXTO20,texto21,texto22,texto33,TEXTO34,TEXTO35,numerico1,numerico2,numerico8,numerico19,fecha3) values ('Servicios','Ana L (Compartido con) Íñigo N','3,7','9','','','',55,-0.25,2,100.25,#03/15/2024#)

# Rows of the summary box, remarks and vouchers.
Insert into subinformes (texto1,numerico1) values ('Gastos del Dia:',-16.25)
Insert into subinformes (texto1,numerico1) values ('Caja Inicial:',50.25)
Insert into subinformes (texto1,texto2,Fecha1,fecha2) values ('Ana L','Falta cambio de 5 €',#03/15/2024#,#12/30/1899 20:30:00#)
Insert into subinformes (texto10,texto11,texto12,texto14,texto15,numerico1,fecha3) values ('106','Ana Martínez','Abono venta = 106','3','Venta = 113',12.5,#03/15/2024#)
Insert into subinformes (texto22,numerico2,numerico4) values ('Champú',2,25)
