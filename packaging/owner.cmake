# What only the owner of Ventrel can settle. Everything that names a licence, a website or a maintainer takes it from
# here: the packages, the metadata of software centres, the man pages.

# The licence of the project's own code and drawings, as an SPDX expression. It has not been chosen yet: choose one, put
# its text into LICENCE beside README.md, and say so here.
set(VENTREL_LICENCE "LicenseRef-not-chosen-yet")

# Where players find the project, with the pictures of docs/pictures below it.
set(VENTREL_WEBSITE "https://ventrel.example")

# Who makes the packages, as "Name <address>".
set(VENTREL_MAINTAINER "The Ventrel team <team@ventrel.example>")

# The name of the program among all programs of the desktop, the website's backwards.
set(VENTREL_APP_ID "example.ventrel.Ventrel")
