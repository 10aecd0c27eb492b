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
     "documento de requisitos de producto, visión de producto, ficha de funcionalidad",
     ""},
    {DocumentKind::spec,
     "especificación, especificaciones, pliego de condiciones, requisitos, requerimientos, "
     "análisis de requisitos, análisis funcional, definición funcional, ficha técnica, "
     "términos de referencia, fichas técnicas, documento de requisitos, ers, pliego",
     ""},
    {DocumentKind::plan,
     "plan, planes, planificación, hoja de ruta, roadmap, cronograma, calendario, estrategia, "
     "estrategias, objetivos, plan estratégico, plan operativo, plan anual, plan mensual, "
     "plan semanal, plan comercial, horario, programa de mantenimiento, calendario editorial, "
     "programación anual, agenda semanal, cuadrante, planificación semanal",
     ""},
    {DocumentKind::userStories,
     "historias de usuario, historia de usuario, casos de uso, caso de uso, criterios de aceptación, "
     "backlog del producto, hu",
     ""},
    {DocumentKind::meetingNotes,
     "acta, minuta, notas de reunión, notas de la reunión, resumen de la reunión, resumen de reunión, "
     "orden del día, agenda de la reunión, acuerdos de la reunión, actas, reuniones",
     ""},
    {DocumentKind::report,
     "informe, informes, reporte, reportes, análisis, resumen ejecutivo, resumen semanal, "
     "resumen mensual, memoria anual, memoria de actividades, auditoría, diagnóstico, evaluación, "
     "borrador del informe, auditorías, resumen trimestral, parte de trabajo, dictamen, "
     "cuadro de mando, libro blanco, avance, resumen de",
     ""},
    {DocumentKind::research,
     "investigación, estudio, análisis de mercado, análisis del mercado, análisis de la competencia, "
     "análisis competitivo, análisis comparativo, análisis dafo, comparativa, encuesta, encuestas, "
     "entrevistas a usuarios, estado del arte, revisión bibliográfica, estudios, comparación de precios, sondeo, "
     "cuestionario de satisfacción, trabajo de campo, entrevistas con usuarios",
     ""},
    {DocumentKind::retrospective,
     "retrospectiva, lecciones aprendidas, cierre del proyecto, revisión del sprint, "
     "balance del proyecto",
     ""},
    {DocumentKind::checklist,
     "lista de verificación, lista de comprobación, lista de control, lista de chequeo, checklist, "
     "lista de tareas, lista de pendientes, pendientes, tareas, lista de la compra, cosas por hacer, "
     "lista de compras",
     ""},
    {DocumentKind::proposal,
     "propuesta, anteproyecto, solicitud de subvención, borrador de propuesta, solicitud de beca, "
     "solicitud de financiación, licitación, oferta técnica, recomendaciones",
     ""},
    {DocumentKind::memo,
     "memorando, memo, nota, notas, recordatorio, lluvia de ideas, memorándum, apuntes rápidos, "
     "ideas sueltas",
     ""},
    {DocumentKind::presentation, "presentación, diapositivas, ponencia, charla, exposición, presentaciones", ""},
    {DocumentKind::designDoc,
     "documento de diseño, diseño técnico, diseño de arquitectura, diseño del sistema, "
     "diseño de software, diseño de base de datos, decisión de arquitectura, modelo de datos, "
     "esquema de base de datos, rfc, documento de arquitectura, arquitectura, diagrama, "
     "diagrama de flujo, visión general de la arquitectura",
     ""},
    {DocumentKind::apiDoc,
     "documentación de la api, documentación de api, referencia de la api, referencia de api, "
     "especificación de la api, guía de la api, referencia api, referencia de endpoints",
     ""},
    {DocumentKind::testPlan,
     "plan de pruebas, casos de prueba, caso de prueba, estrategia de pruebas, pruebas de aceptación, "
     "pruebas de regresión, matriz de pruebas",
     "pruebas"},
    {DocumentKind::bugReport,
     "informe de errores, reporte de error, reporte de errores, reporte de bug, informe de bug, "
     "reporte de fallo, errores conocidos, error al, informe de error, reporte de bugs, "
     "reporte de fallos, reporte de incidencias, lista de errores, incidencia",
     ""},
    {DocumentKind::codeReview,
     "revisión de código, revisión del código, revisión de pull request, auditoría de código, comentarios de revisión",
     "revisión"},
    {DocumentKind::postmortem,
     "post mortem, informe de incidente, informe de incidencia, reporte de incidente, "
     "análisis del incidente, análisis de causa raíz, informe de accidente, informe de caída",
     ""},
    {DocumentKind::changelog,
     "registro de cambios, historial de cambios, historial de versiones, control de cambios, "
     "notas de la versión, notas de versión, notas de lanzamiento, changelog, novedades",
     ""},
    {DocumentKind::guide,
     "guía, manual, instrucciones, tutorial, instructivo, manual técnico, manual práctico, "
     "cómo instalar, cómo configurar, cómo usar, cómo hacer, primeros pasos, procedimiento, "
     "protocolo, buenas prácticas, documentación, solución de problemas, léeme, procedimientos, "
     "protocolos, consejos, manuales, guías, tutorial paso a paso",
     ""},
    {DocumentKind::data,
     "datos, conjunto de datos, tabla, hoja de cálculo, estadísticas, métricas, indicadores, "
     "inventario, listado, lista de contactos, lista de clientes, base de datos, directorio, "
     "registro de asistencia, padrón",
     ""},
    {DocumentKind::prompt, "prompt, prompts, instrucciones para la ia, instrucciones del sistema, plantilla de prompts",
     ""},
    {DocumentKind::design,
     "diseño, diseños, maqueta, maquetas, prototipo, prototipos, boceto, wireframe, mockup, "
     "flujo de usuario, rediseño, wireframes, bocetos, mapa de experiencia",
     ""},
    {DocumentKind::designSystem,
     "sistema de diseño, guía de estilo, guía de marca, manual de marca, manual de identidad, "
     "identidad visual, biblioteca de componentes, paleta de colores, identidad corporativa, "
     "libro de estilo",
     ""},
    {DocumentKind::marketingCopy,
     "texto publicitario, textos publicitarios, copy publicitario, copy de, anuncio publicitario, "
     "eslogan, eslóganes, folleto, descripción de producto, descripción del producto, "
     "página de aterrizaje, página de ventas, texto para, tríptico, copys, textos para",
     ""},
    {DocumentKind::sales,
     "argumentario, presentación comercial, presentación de ventas, oferta comercial, "
     "dossier comercial, catálogo, lista de precios, tarifas, caso de éxito, casos de éxito, "
     "guion de llamada, dossier de empresa, propuesta comercial",
     ""},
    {DocumentKind::pressRelease,
     "nota de prensa, comunicado de prensa, dossier de prensa, boletín de prensa, "
     "declaración institucional",
     ""},
    {DocumentKind::newsletter, "boletín, newsletter, newsletters, boletines", ""},
    {DocumentKind::socialPost,
     "publicación en redes sociales, publicación de instagram, publicación de linkedin, post de instagram, post para, "
     "hilo de twitter, tuit, post de linkedin, publicación en instagram, pie de foto, publicación para, publicaciones",
     ""},
    {DocumentKind::businessPlan,
     "plan de negocio, plan de negocios, plan de empresa, modelo de negocio, plan de viabilidad", ""},
    {DocumentKind::finance,
     "presupuesto, factura, cotización, recibo, nómina, estado de cuenta, estado de resultados, balance general, "
     "cuentas anuales, flujo de caja, plan financiero, informe financiero, análisis financiero, informe de gastos, "
     "proyecciones financieras, declaración de la renta, liquidación, orden de compra, nota de crédito, "
     "nota de gastos, balance, cuenta de resultados, albarán, extracto bancario, estado financiero, gastos de viaje, "
     "estimación de costes, proforma, libro de cuentas, estado de cuentas, facturas, presupuestos, gastos, "
     "hoja de gastos",
     ""},
    {DocumentKind::legal,
     "contrato, acuerdo, acuerdos, convenio, términos y condiciones, condiciones de uso, "
     "condiciones generales, términos de uso, aviso legal, aviso de privacidad, borrador de contrato, "
     "licencia, sentencia, poder notarial, estatutos, cláusulas, informe jurídico, certificado, "
     "demanda, testamento, consentimiento informado, escritura, declaración jurada, autorización, "
     "denuncia, pacto de socios, contratos",
     ""},
    {DocumentKind::policy,
     "política, reglamento, normativa, normas, reglas, código de conducta, código ético, "
     "lineamientos, directrices, ordenanza, políticas",
     ""},
    {DocumentKind::notice,
     "aviso, avisos, anuncio, anuncios, comunicado, circular informativa, notificación, convocatoria, "
     "invitación, circular, citación, edicto, comunicación a las familias",
     ""},
    {DocumentKind::jobPosting,
     "oferta de empleo, oferta de trabajo, anuncio de empleo, vacante, descripción del puesto, "
     "perfil del puesto, convocatoria de empleo, buscamos, descripción de puesto, anuncio de trabajo",
     ""},
    {DocumentKind::email,
     "correo electrónico, correo de bienvenida, correo de seguimiento, correo para, correo a, email de, email para, "
     "borrador de correo, plantilla de correo, respuesta al cliente, carta de renuncia, carta de agradecimiento, "
     "mensaje para, mensaje de bienvenida, carta de reclamación, correo de agradecimiento, carta a, "
     "carta de disculpa, correo de disculpa, borrador de email, correos, correo al",
     "carta, cartas, correo, correos"},
    {DocumentKind::faq,
     "preguntas frecuentes, pregunta frecuente, preguntas y respuestas, preguntas más frecuentes, "
     "dudas frecuentes, faq, artículo de ayuda",
     ""},
    {DocumentKind::blogPost,
     "entrada de blog, entrada del blog, artículo, artículos, publicación de blog, post de blog, "
     "post del blog, borrador de artículo, crónica",
     ""},
    {DocumentKind::script,
     "guion, guión, discurso, subtítulos, transcripción, escaleta, monólogo, diálogo, obra de teatro, "
     "locución, pregón",
     "diálogo"},
    {DocumentKind::essay,
     "ensayo, artículo de opinión, columna de opinión, reseña, reseñas, crítica, comentario de texto, "
     "análisis literario, redacción, reflexión",
     ""},
    {DocumentKind::story,
     "cuento, relato, novela, microrrelato, poema, poesía, fábula, historia corta, "
     "capítulo de la novela, letra de canción, sinopsis, poemas",
     "historia, historias"},
    {DocumentKind::translation,
     "traducción, borrador de traducción, versión en inglés, versión en español, versión inglesa", ""},
    {DocumentKind::learning,
     "material didáctico, material de estudio, material del curso, material de formación, curso, "
     "cursos, temario, plan de estudios, plan de clase, plan de formación, plan de aprendizaje, "
     "programa del curso, programa de la asignatura, programa de formación, programación didáctica, "
     "guía docente, guía didáctica, unidad didáctica, secuencia didáctica, sílabo, lección, "
     "lecciones, taller de, cuaderno de trabajo",
     ""},
    {DocumentKind::lectureNotes,
     "apuntes de clase, apuntes del curso, notas de clase, notas del curso, resumen de la clase, notas del seminario, "
     "apuntes de la clase, notas de la clase",
     "clase, clases"},
    {DocumentKind::studyNotes,
     "apuntes, notas de estudio, resumen del tema, resumen para el examen, tarjetas de estudio, mapa conceptual, "
     "mapa mental, repaso, guía de estudio, vocabulario, resumen tema, ficha de repaso, esquema, chuleta, "
     "fichas de repaso, tarjetas de memoria, esquemas, resumen para estudiar, tarjetas de vocabulario",
     ""},
    {DocumentKind::readingNotes,
     "notas de lectura, apuntes de lectura, ficha de lectura, fichas de lectura, resumen del libro, "
     "resumen de libro, resumen de lectura, resumen del capítulo, diario de lectura, "
     "reporte de lectura, informe de lectura, control de lectura",
     ""},
    {DocumentKind::exercises,
     "ejercicios, ejercicio, hoja de ejercicios, cuaderno de ejercicios, guía de ejercicios, lista de ejercicios, "
     "deberes, hoja de trabajo, banco de preguntas, trabajo práctico, hoja de problemas, tarea, problemas, dictado",
     ""},
    {DocumentKind::solutions,
     "solucionario, solucionarios, ejercicios resueltos, ejercicio resuelto, problemas resueltos, examen resuelto, "
     "hoja de respuestas, clave de respuestas, respuestas del examen, soluciones, respuestas, corrección",
     "soluciones, respuestas"},
    {DocumentKind::quiz,
     "examen, parcial, cuestionario, cuestionarios, control de matemáticas, prueba de nivel, "
     "prueba diagnóstica, prueba final, evaluación final, evaluación parcial, evaluación diagnóstica, "
     "simulacro de examen, modelo de examen, preguntas de examen, preguntas tipo test, "
     "autoevaluación, prueba de matemáticas, prueba de evaluación, exámenes",
     "prueba"},
    {DocumentKind::errorNotes,
     "cuaderno de errores, libreta de errores, diario de errores, notas de errores, mis errores, "
     "registro de errores, errores frecuentes",
     ""},
    {DocumentKind::paper,
     "tesis, tesina, trabajo de fin de grado, trabajo fin de grado, trabajo de fin de máster, "
     "trabajo fin de máster, trabajo de grado, trabajo de investigación, trabajo académico, tfg, tfm, "
     "artículo científico, artículo académico, artículo de investigación, monografía, "
     "proyecto de investigación, marco teórico",
     ""},
    {DocumentKind::journal, "diario, mi diario, entrada de diario, entrada del diario, bitácora, reflexión personal",
     ""},
    {DocumentKind::resume,
     "currículum, curriculum vitae, hoja de vida, carta de presentación, cartas de presentación, carta de motivación, "
     "cartas de motivación, perfil profesional, mi cv, cv de, portafolio, carta de recomendación",
     ""},
    {DocumentKind::travelPlan,
     "plan de viaje, plan de vacaciones, itinerario, ruta de viaje, guía de viaje, programa de viaje, "
     "programa del viaje, planificación del viaje, lista de equipaje, ruta por, viaje a, excursión, "
     "viajes",
     "viaje, viajes"},
    {DocumentKind::recipe,
     "receta, recetas, recetario, libro de recetas, libro de cocina, menú semanal, plan de comidas, "
     "menú",
     "menú"},
}};

}  // namespace

std::span<const Layered> spanish() {
    return words;
}

}  // namespace vellark::KindWords
