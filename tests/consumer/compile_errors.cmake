# A call with elements of another type fails with a short message that names the types which the routine accepts.

file(MAKE_DIRECTORY "${WORK_DIR}")

# compile(<statement>) sets `result` and `message`.
function(compile statement)
  file(WRITE "${WORK_DIR}/call.cpp"
    "#include <vector>\n"
    "#include \"qorvex/stats/QorvexStatistics.h\"\n"
    "#include \"qorvex/vector/QorvexVector.h\"\n"
    "using namespace qorvex;\n"
    "void Call() {\n"
    "  std::vector<char> chars; std::vector<double> doubles; TQorDoubleVector v; TQorWordVector words;\n"
    "  ${statement};\n"
    "}\n")
  execute_process(
    COMMAND "${COMPILER}" -std=c++20 -fsyntax-only -I "${SOURCE_DIR}" -I "${GENERATED_DIR}" "${WORK_DIR}/call.cpp"
    RESULT_VARIABLE result ERROR_VARIABLE message)
  set(result "${result}" PARENT_SCOPE)
  set(message "${message}" PARENT_SCOPE)
endfunction()

# refused(<statement> <most lines> <types>)
function(refused statement most_lines types)
  compile("${statement}")
  if(result EQUAL 0)
    message(SEND_ERROR "${statement} compiles")
  endif()
  if(NOT message MATCHES "${types}")
    message(SEND_ERROR "${statement}: no list of types in\n${message}")
  endif()
  string(REGEX MATCHALL "\n" lines "${message}")
  list(LENGTH lines lines)
  if(lines GREATER most_lines)
    message(SEND_ERROR "${statement}: ${lines} lines, more than ${most_lines}\n${message}")
  endif()
  message(STATUS "${lines} lines: ${statement}")
endfunction()

compile("(void)SumVector(doubles), (void)AddVectors(doubles, v)")
if(NOT result EQUAL 0)
  message(FATAL_ERROR "valid calls do not compile:\n${message}")
endif()

set(floats "long double, double, float")
refused("(void)SumVector(chars)" 35 "${floats}, long( int)?, unsigned int, int, ")
refused("(void)VectorPositive(words)" 35 "${floats}, long( int)?, ")
refused("(void)MovingAverage(words, 1, 0)" 35 "${floats}[^,]")
refused("(void)DotProdVectors(chars, chars)" 45 "${floats}, long( int)?, unsigned int, int[^,]")
refused("(void)AddVectors(words, words)" 45 "${floats}, long( int)?, int, ")
refused("(void)AddVectors(v, chars)" 30 "VectorView<double>")
refused("(void)SumSqDiffVector(chars, 1)" 60 "${floats}[^,]")
refused("AddToVector(v, chars)" 30 "VectorView<double>")
refused("(void)GeometricMean(doubles)" 30 "VectorView<long double>")
