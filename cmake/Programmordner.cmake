# The program and the folder it runs in; written out below.
