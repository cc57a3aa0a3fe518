# SPDX-FileCopyrightText: 2026 The DiagnosisPlugin authors
# SPDX-License-Identifier: MIT

# Moves the configuration to /etc in the package's files, and links it from where the plug-in looks.
set(root ${CPACK_TEMPORARY_INSTALL_DIRECTORY})
cmake_path(GET CPACK_CONFIGURATION PARENT_PATH folder)
file(MAKE_DIRECTORY ${root}/${folder})
file(RENAME ${root}/${CPACK_CONFIGURATION_LINK} ${root}/${CPACK_CONFIGURATION})
file(CREATE_LINK /${CPACK_CONFIGURATION} ${root}/${CPACK_CONFIGURATION_LINK} SYMBOLIC)
