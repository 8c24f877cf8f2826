# Stages the sample installation: copies the tree, puts the program in progra/ and writes
# impostazioni/dirlav with the absolute path of the staged jobs folder.
# Arguments: SORGENTE, DESTINAZIONE, PROGRAMMA.
file(MAKE_DIRECTORY ${DESTINAZIONE})
file(COPY ${SORGENTE}/ DESTINATION ${DESTINAZIONE})
file(COPY ${PROGRAMMA} DESTINATION ${DESTINAZIONE}/progra)
file(WRITE ${DESTINAZIONE}/impostazioni/dirlav "${DESTINAZIONE}/lavori\r\n")
