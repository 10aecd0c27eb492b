#include <VellarkDomain/Documents/Kinds/Words/KindWords.hpp>

#include <array>

// Spanish words that name a document. A title's head stands first, so fixed pairs whose adjective follows ("plan
// anual") are listed where the noun alone is an English word too. Plurals are listed; forms without accents are
// derived. To mend: move or add a word inside its kind's row, common word first, never under two kinds; the number of
// words is counted by a test, which changes with the list.

namespace vellark::KindWords {

namespace {

constexpr std::array<Layered, 55> words{{
    {DocumentKind::prd,
     "documento de requisitos del producto, requisitos del producto, requerimientos del producto, "
     "visión del producto, brief de producto, prd, definición de producto, requisitos de producto, "
     "documento de requisitos de producto",
     ""},
    {DocumentKind::spec,
     "especificación, especificaciones, pliego de condiciones, requisitos, requerimientos, "
     "análisis de requisitos, análisis funcional, definición funcional, ficha técnica, "
     "términos de referencia, fichas técnicas, documento de requisitos, pliego de",
     ""},
    {DocumentKind::plan,
     "plan, planes, planificación, planeación, hoja de ruta, roadmap, cronograma, calendario, "
     "estrategia, estrategias, objetivos, plan estratégico, plan operativo, plan anual, plan "
     "mensual, plan semanal, plan trimestral, plan comercial, plan maestro, plan director, "
     "horario, programa de mantenimiento",
     ""},
    {DocumentKind::userStories,
     "historias de usuario, historia de usuario, casos de uso, caso de uso, épicas, criterios de aceptación, "
     "backlog del producto, mapa de historias",
     ""},
    {DocumentKind::meetingNotes,
     "acta, actas, minuta, minutas, notas de reunión, notas de la reunión, resumen de la reunión, "
     "resumen de reunión, orden del día, agenda de la reunión, resumen de la llamada, agenda de reunión",
     ""},
    {DocumentKind::report,
     "informe, informes, reporte, reportes, análisis, resumen ejecutivo, resumen semanal, "
     "resumen mensual, memoria anual, memoria de actividades, auditoría, diagnóstico, "
     "evaluación, borrador del informe, auditorías, resumen trimestral, parte de trabajo",
     ""},
    {DocumentKind::research,
     "investigación, estudio, análisis de mercado, análisis del mercado, análisis de la competencia, "
     "análisis competitivo, análisis comparativo, análisis dafo, comparativa, encuesta, encuestas, "
     "entrevistas a usuarios, estado del arte, revisión bibliográfica, estudios, comparación de precios",
     ""},
    {DocumentKind::retrospective,
     "retrospectiva, retro del sprint, lecciones aprendidas, cierre del proyecto, revisión del "
     "sprint",
     ""},
    {DocumentKind::checklist,
     "lista de verificación, lista de comprobación, lista de control, lista de chequeo, checklist, "
     "lista de tareas, lista de pendientes, pendientes, tareas, lista de la compra, cosas por hacer, "
     "listas de verificación, lista de compras",
     ""},
    {DocumentKind::proposal,
     "propuesta, propuestas, anteproyecto, solicitud de subvención, borrador de propuesta, "
     "solicitud de beca",
     ""},
    {DocumentKind::memo, "memorando, memo, nota, notas, recordatorio, lluvia de ideas, recordatorios, memorándum", ""},
    {DocumentKind::presentation, "presentación, presentaciones, diapositivas, ponencia, charla, exposición", ""},
    {DocumentKind::designDoc,
     "documento de diseño, diseño técnico, diseño de arquitectura, diseño del sistema, "
     "diseño de software, diseño de base de datos, diseño de la base de datos, diseño de api, "
     "decisión de arquitectura, modelo de datos, esquema de base de datos, rfc, "
     "documento de arquitectura, arquitectura, diagrama, diagrama de flujo",
     ""},
    {DocumentKind::apiDoc,
     "documentación de la api, documentación de api, referencia de la api, referencia de api, "
     "especificación de la api, guía de la api, referencia api",
     ""},
    {DocumentKind::testPlan,
     "plan de pruebas, plan de prueba, casos de prueba, caso de prueba, estrategia de pruebas, plan de validación, "
     "pruebas de aceptación, pruebas de regresión, pruebas de integración",
     "pruebas"},
    {DocumentKind::bugReport,
     "informe de errores, reporte de error, reporte de errores, reporte de bug, informe de bug, reporte de fallo, "
     "errores conocidos, error al, informe de error, reporte de bugs",
     ""},
    {DocumentKind::codeReview,
     "revisión de código, revisión del código, revisión de pull request, revisión del pr, auditoría de código, "
     "revisión de pr",
     "revisión"},
    {DocumentKind::postmortem,
     "post mortem, informe de incidente, informe de incidentes, informe del incidente, informe de incidencia, "
     "reporte de incidente, análisis del incidente, análisis de causa raíz",
     ""},
    {DocumentKind::changelog,
     "registro de cambios, historial de cambios, historial de versiones, control de cambios, notas de la versión, "
     "notas de versión, notas de lanzamiento, changelog",
     ""},
    {DocumentKind::guide,
     "guía, guías, manual, manuales, instrucciones, tutorial, tutoriales, instructivo, manual técnico, "
     "manual práctico, cómo instalar, cómo configurar, cómo usar, cómo hacer, primeros pasos, procedimiento, "
     "protocolo, buenas prácticas, documentación, solución de problemas, léeme, procedimientos, protocolos",
     ""},
    {DocumentKind::data,
     "datos, conjunto de datos, tabla, hoja de cálculo, estadística, estadísticas, métricas, "
     "indicadores, inventario, listado, cuadro de mando, lista de contactos, lista de "
     "clientes, base de datos",
     ""},
    {DocumentKind::prompt, "prompt, prompts, instrucciones para la ia, instrucciones del sistema", ""},
    {DocumentKind::design,
     "diseño, diseños, maqueta, maquetas, prototipo, prototipos, boceto, wireframe, mockup, flujo de usuario, "
     "rediseño, wireframes, bocetos",
     ""},
    {DocumentKind::designSystem,
     "sistema de diseño, guía de estilo, guía de estilos, guía de marca, manual de marca, manual de identidad, "
     "identidad visual, biblioteca de componentes, paleta de colores",
     ""},
    {DocumentKind::marketingCopy,
     "texto publicitario, textos publicitarios, copy publicitario, copy para, copy de, anuncio "
     "publicitario, eslogan, eslóganes, folleto, folletos, descripción de producto, "
     "descripción del producto, página de aterrizaje, página de ventas, texto para",
     ""},
    {DocumentKind::sales,
     "material de ventas, argumentario, presentación comercial, presentación de ventas, oferta comercial, "
     "dossier comercial, catálogo, catálogos, lista de precios, tarifas, caso de éxito, casos de éxito",
     ""},
    {DocumentKind::pressRelease,
     "nota de prensa, notas de prensa, comunicado de prensa, comunicados de prensa, dossier de "
     "prensa",
     ""},
    {DocumentKind::newsletter, "boletín, boletines, newsletter, newsletters", ""},
    {DocumentKind::socialPost,
     "publicación en redes sociales, publicaciones en redes sociales, publicación para redes "
     "sociales, publicación de instagram, publicación de linkedin, publicación para instagram, "
     "publicación para linkedin, post de instagram, post para, hilo de twitter, tuit, "
     "contenido para redes, publicaciones redes sociales, post de linkedin",
     ""},
    {DocumentKind::businessPlan,
     "plan de negocio, plan de negocios, plan de empresa, modelo de negocio, lienzo de modelo de negocio", ""},
    {DocumentKind::finance,
     "presupuesto, presupuestos, factura, facturas, cotización, cotizaciones, recibo, recibos, "
     "nómina, estados financieros, estado de cuenta, estado de resultados, balance general, "
     "cuentas anuales, flujo de caja, plan financiero, informe financiero, análisis "
     "financiero, informe de gastos, proyecciones financieras, declaración de la renta, "
     "liquidación, orden de compra, nota de crédito, nota de gastos",
     ""},
    {DocumentKind::legal,
     "contrato, contratos, acuerdo, acuerdos, convenio, convenios, términos y condiciones, "
     "condiciones de uso, condiciones generales, términos de uso, aviso legal, aviso de "
     "privacidad, borrador de contrato, borrador del contrato, licencia, demanda judicial, "
     "demanda laboral, sentencia, poder notarial, estatutos, cláusulas, informe jurídico, "
     "certificado",
     ""},
    {DocumentKind::policy,
     "política, políticas, reglamento, reglamentos, normativa, normas, reglas, código de conducta, código ético, "
     "lineamientos, directrices",
     ""},
    {DocumentKind::notice,
     "aviso, avisos, anuncio, anuncios, comunicado, comunicados, circular informativa, "
     "circular interna, notificación, convocatoria, invitación, circular",
     ""},
    {DocumentKind::jobPosting,
     "oferta de empleo, ofertas de empleo, oferta de trabajo, ofertas de trabajo, anuncio de empleo, vacante, "
     "descripción del puesto, perfil del puesto, convocatoria de empleo, se busca, buscamos",
     ""},
    {DocumentKind::email,
     "correo electrónico, correos electrónicos, correo de bienvenida, correo de seguimiento, "
     "correo para, correo a, email de, email para, borrador de correo, plantilla de correo, "
     "plantillas de correo, respuesta al cliente, carta de recomendación, carta de renuncia, "
     "carta de agradecimiento, mensaje para, mensaje de bienvenida, carta de reclamación, "
     "correo de agradecimiento, carta a, carta de disculpa, correo de disculpa",
     "carta, cartas, correo, correos"},
    {DocumentKind::faq,
     "preguntas frecuentes, pregunta frecuente, preguntas y respuestas, preguntas más frecuentes, "
     "dudas frecuentes, faq, artículo de ayuda",
     ""},
    {DocumentKind::blogPost,
     "entrada de blog, entradas de blog, entrada del blog, artículo, artículos, publicación de blog, "
     "publicación del blog, post de blog, post del blog, borrador de artículo, borrador del artículo, reportaje, "
     "crónica",
     ""},
    {DocumentKind::script,
     "guion, guiones, guión, libreto, discurso, discursos, subtítulos, transcripción, "
     "transcripciones, escaleta, monólogo",
     "diálogo"},
    {DocumentKind::essay,
     "ensayo, ensayos, artículo de opinión, artículos de opinión, columna de opinión, columna semanal, reseña, "
     "reseñas, crítica, críticas, comentario de texto, análisis literario, redacción, redacciones, "
     "texto argumentativo",
     ""},
    {DocumentKind::story,
     "cuento, cuentos, relato, relatos, novela, novelas, microrrelato, poema, poemas, poesía, "
     "poemario, fábula, historia corta, capítulo de la novela, letra de canción",
     "historia, historias"},
    {DocumentKind::translation,
     "traducción, traducciones, borrador de traducción, texto traducido, documento traducido, versión en inglés, "
     "versión en español, versión inglesa",
     ""},
    {DocumentKind::learning,
     "material didáctico, material de estudio, materiales de estudio, material del curso, "
     "materiales del curso, material de formación, curso, cursos, temario, temarios, plan de "
     "estudios, planes de estudio, plan de clase, plan de formación, plan de aprendizaje, "
     "programa del curso, programa de la asignatura, programa de formación, programación "
     "didáctica, guía docente, guía didáctica, unidad didáctica, unidades didácticas, "
     "secuencia didáctica, sílabo, lección, lecciones, planeación didáctica, taller de",
     ""},
    {DocumentKind::lectureNotes,
     "apuntes de clase, apuntes de la clase, apuntes del curso, notas de clase, notas de la "
     "clase, notas del curso, resumen de la clase",
     "clase, clases"},
    {DocumentKind::studyNotes,
     "apuntes, notas de estudio, resumen del tema, resumen para el examen, esquema del tema, "
     "fichas de estudio, tarjetas de estudio, mapa conceptual, mapas conceptuales, mapa "
     "mental, repaso, guía de estudio, guías de estudio, vocabulario, resumen tema, esquema de "
     "estudio, ficha de repaso",
     ""},
    {DocumentKind::readingNotes,
     "notas de lectura, apuntes de lectura, ficha de lectura, fichas de lectura, resumen del libro, "
     "resumen de libro, resumen de lectura, resumen del capítulo, diario de lectura, reporte de lectura, "
     "informe de lectura, control de lectura, citas del libro",
     ""},
    {DocumentKind::exercises,
     "ejercicios, ejercicio, problemas de matemáticas, problemas de física, hoja de ejercicios, "
     "hojas de ejercicios, cuaderno de ejercicios, guía de ejercicios, lista de ejercicios, "
     "tarea de matemáticas, deberes, hoja de trabajo, hojas de trabajo, banco de preguntas, "
     "trabajo práctico, hoja de problemas",
     ""},
    {DocumentKind::solutions,
     "solucionario, solucionarios, solución del examen, solución de los ejercicios, soluciones "
     "de los ejercicios, soluciones a los ejercicios, soluciones de ejercicios, soluciones del "
     "examen, ejercicios resueltos, ejercicio resuelto, problemas resueltos, examen resuelto, "
     "hoja de respuestas, clave de respuestas, respuestas del examen, respuestas del "
     "cuestionario, soluciones tema",
     "soluciones, respuestas"},
    {DocumentKind::quiz,
     "examen, exámenes, parcial, parciales, cuestionario, cuestionarios, control de "
     "matemáticas, prueba de nivel, prueba diagnóstica, prueba final, evaluación final, "
     "evaluación parcial, evaluación diagnóstica, simulacro de examen, modelo de examen, "
     "preguntas de examen, preguntas tipo test, autoevaluación, prueba de matemáticas",
     "prueba"},
    {DocumentKind::errorNotes,
     "cuaderno de errores, libreta de errores, diario de errores, notas de errores, errores "
     "del examen, errores en el examen, mis errores, repaso de errores, registro de errores",
     ""},
    {DocumentKind::paper,
     "tesis, tesina, trabajo de fin de grado, trabajo fin de grado, trabajo de fin de máster, "
     "trabajo fin de máster, trabajo de grado, trabajo de investigación, trabajo académico, "
     "tfg, tfm, artículo científico, artículos científicos, artículo académico, artículo de "
     "investigación, disertación, monografía, proyecto de investigación, marco teórico",
     ""},
    {DocumentKind::journal,
     "diario, diarios, mi diario, entrada de diario, entrada del diario, bitácora, reflexión "
     "diaria, reflexiones del día, reflexión personal, reflexiones personales",
     ""},
    {DocumentKind::resume,
     "currículum, curriculum vitae, hoja de vida, carta de presentación, cartas de "
     "presentación, carta de motivación, cartas de motivación, perfil profesional, portafolio "
     "profesional, mi cv, cv de",
     ""},
    {DocumentKind::travelPlan,
     "plan de viaje, plan de vacaciones, itinerario, itinerarios, ruta de viaje, guía de "
     "viaje, guías de viaje, programa de viaje, programa del viaje, planificación del viaje, "
     "planificación de viaje, presupuesto de viaje, presupuesto del viaje, lista de equipaje, "
     "ruta por, viaje a",
     "viaje, viajes"},
    {DocumentKind::recipe,
     "receta, recetas, recetario, libro de recetas, libro de cocina, menú semanal, plan de "
     "comidas",
     "menú"},
}};

}  // namespace

std::span<const Layered> spanish() {
    return words;
}

}  // namespace vellark::KindWords
