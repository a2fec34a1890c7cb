# Makes one page of the guide: the Markdown of PAGE, in FRAME, becomes OUTPUT. Links to the other PAGES lead to their
# HTML; a link to any other page of the project stops the build, since it would lead nowhere.
cmake_minimum_required(VERSION 3.25)
execute_process(COMMAND ${CMARK} --to html --extension table ${PAGE} OUTPUT_VARIABLE QUEXAL_BODY COMMAND_ERROR_IS_FATAL ANY)

foreach(other IN LISTS PAGES)
    string(REGEX REPLACE "href=\"${other}\\.md([#\"])" "href=\"${other}.html\\1" QUEXAL_BODY "${QUEXAL_BODY}")
endforeach()
if(QUEXAL_BODY MATCHES "href=\"([^\":]+\\.md[^\"]*)\"")
    message(FATAL_ERROR "${PAGE} links to ${CMAKE_MATCH_1}, which is no page of the guide")
endif()

# A heading can be linked to by its words, as where Markdown is shown.
while(QUEXAL_BODY MATCHES "<(h[1-6])>([^\n]*)</h")
    set(level ${CMAKE_MATCH_1})
    set(words "${CMAKE_MATCH_2}")
    string(REGEX REPLACE "<[^>]*>|&[a-z]+;|[^A-Za-z0-9 -]" "" name "${words}")
    string(TOLOWER "${name}" name)
    string(REPLACE " " "-" name "${name}")
    string(REPLACE "<${level}>${words}</" "<${level} id=\"${name}\">${words}</" QUEXAL_BODY "${QUEXAL_BODY}")
endwhile()

if(NOT QUEXAL_BODY MATCHES "<h1[^>]*>([^<]+)</h1>")
    message(FATAL_ERROR "${PAGE} has no title")
endif()
set(QUEXAL_TITLE "${CMAKE_MATCH_1}")
configure_file(${FRAME} ${OUTPUT} @ONLY)
