# Brings the texts of the sources into a copy of each translation: none may be left untranslated.
file(GLOB translations "${SOURCE_DIR}/qorvex/controls/i18n/*.ts")
foreach(translation IN LISTS translations)
  cmake_path(GET translation FILENAME name)
  set(copy "${BINARY_DIR}/${name}")
  file(COPY "${translation}" DESTINATION "${BINARY_DIR}")
  execute_process(
    COMMAND "${LUPDATE}" -silent -no-obsolete -I "${SOURCE_DIR}"
      "${SOURCE_DIR}/qorvex/base_controls" "${SOURCE_DIR}/qorvex/controls" -ts "${copy}"
    COMMAND_ERROR_IS_FATAL ANY)
  file(READ "${copy}" text)
  string(FIND "${text}" "type=\"unfinished\"" unfinished)
  string(FIND "${text}" "<translation>" finished)
  if(NOT unfinished EQUAL -1 OR finished EQUAL -1)
    message(FATAL_ERROR "${copy} lacks translations")
  endif()
endforeach()
