if(WAYVANE_SANITIZE)
  add_compile_options(-fsanitize=${WAYVANE_SANITIZE} -fno-sanitize-recover=all -fno-omit-frame-pointer)
  add_link_options(-fsanitize=${WAYVANE_SANITIZE})
endif()
