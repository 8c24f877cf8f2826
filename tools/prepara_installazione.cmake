# Stages the sample installation: copies the tree, puts the program in progra/ and writes
# impostazioni/dirlav with the absolute path of the staged jobs folder.
# Arguments: SORGENTE, DESTINAZIONE, PROGRAMMA, and PROGRAMMA_GUI when the desktop program is
# built.
file(MAKE_DIRECTORY ${DESTINAZIONE})
file(COPY ${SORGENTE}/ DESTINATION ${DESTINAZIONE})
file(COPY ${PROGRAMMA} DESTINATION ${DESTINAZIONE}/progra)
if(PROGRAMMA_GUI)
  file(COPY ${PROGRAMMA_GUI} DESTINATION ${DESTINAZIONE}/progra)
endif()
file(WRITE ${DESTINAZIONE}/impostazioni/dirlav "${DESTINAZIONE}/lavori\r\n")
