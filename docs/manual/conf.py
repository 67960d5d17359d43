# Sphinx settings of the manual. scripts/manual puts its sources together and builds it.
import os

project = "Q7_Impressora"
release = version = os.environ["Q7_VERSION_TEXT"]
language = "pt_BR"
root_doc = "index"

# A name in single backquotes must be that of a function, a constant or a page that there is.
default_role = "any"
primary_domain = "c"
highlight_language = "none"
nitpicky = True
# What C itself has.
nitpick_ignore = [("c:identifier", name) for name in ("int", "char", "unsigned")]

# Nothing from the network, nothing of the machine or the moment.
html_theme = "alabaster"
html_theme_options = {"page_width": "auto", "sidebar_width": "18em", "font_family": "sans-serif",
                      "font_size": "16px", "show_powered_by": False}
html_copy_source = False
html_show_copyright = False
html_show_sphinx = False
html_last_updated_fmt = None
