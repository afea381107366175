# Writes generated/frame/version.h: the version record's numbers and strings.
# The build date follows SOURCE_DATE_EPOCH when it is set, so that builds can be reproduced.
string(TIMESTAMP _month "%b" UTC)
string(TIMESTAMP _day "%d" UTC)
string(TIMESTAMP _year "%Y" UTC)
math(EXPR _day "${_day}")  # no leading zero: "Nov 2 2026"
set(KROI_BUILD_DATE "${_month} ${_day} ${_year}")
math(EXPR _hex "${KROI_VERSION_BUILD}" OUTPUT_FORMAT HEXADECIMAL)
string(SUBSTRING "${_hex}" 2 -1 _hex)
string(LENGTH "${_hex}" _len)
math(EXPR _pad "8 - ${_len}")
string(REPEAT "0" ${_pad} _zeros)
string(TOLOWER "${_zeros}${_hex}" KROI_VERSION_BUILD_HEX)
set(KROI_TIER_ISA "SSE3")
configure_file(${PROJECT_SOURCE_DIR}/src/frame/version.h.in
               ${PROJECT_BINARY_DIR}/generated/frame/version.h @ONLY)
