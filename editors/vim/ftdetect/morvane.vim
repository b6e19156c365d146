autocmd BufRead,BufNewFile *.macro setfiletype morvane
