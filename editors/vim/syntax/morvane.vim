" Colours for the macros of morvane. Made by tools/reference_writer; edit the rows, not this file.
if exists("b:current_syntax")
  finish
endif

syn case ignore
syn iskeyword @,48-57,_,.

syn keyword morvaneCommand bin.to.txt binary.to.text blob.count blob.get blob.pos blob.replace clean
syn keyword morvaneCommand clear datestamp day debug debug.no delay dump dump.all dump.func
syn keyword morvaneCommand dump.line dump.modul dump.modulus dump.output dump.prog dump.redo
syn keyword morvaneCommand dump.stack dump.undo dump.used dump.var dump.var.scope dump.vars.scope
syn keyword morvaneCommand dump.with dump.xml echo hour image.16bit image.24bit image.32bit
syn keyword morvaneCommand image.40bit image.8bit image.dump image.name image.swap image.use
syn keyword morvaneCommand io.align io.dir.change io.dir.copy io.dir.delete io.dir.erase
syn keyword morvaneCommand io.dir.hardchange io.dir.harddelete io.dir.harderase io.dir.hardremove
syn keyword morvaneCommand io.dir.make io.dir.remove io.dir.rename io.dirs io.dirs.add
syn keyword morvaneCommand io.dirs.before io.dirs.clear io.dirs.complete io.dirs.complete.add
syn keyword morvaneCommand io.dirs.first io.dirs.flip io.dirs.get io.dirs.last io.dirs.length
syn keyword morvaneCommand io.dirs.new io.dirs.next io.dirs.number io.dirs.radd io.dirs.rest
syn keyword morvaneCommand io.dirs.rnew io.dirs.size io.dirs.sort io.dirs.sort.date
syn keyword morvaneCommand io.dirs.sort.real io.dirs.sub io.dirs.subweak io.dirs.to.list
syn keyword morvaneCommand io.file.copy io.file.copy.method io.file.copy.to io.file.delete
syn keyword morvaneCommand io.file.erase io.file.getage io.file.getattr io.file.getsize io.file.join
syn keyword morvaneCommand io.file.move io.file.move.to io.file.remove io.file.rename io.file.repair
syn keyword morvaneCommand io.files io.files.add io.files.add.fromfile io.files.before
syn keyword morvaneCommand io.files.clear io.files.first io.files.flip io.files.fromfile
syn keyword morvaneCommand io.files.get io.files.getdir io.files.getextension io.files.getfile
syn keyword morvaneCommand io.files.getfileextension io.files.getname io.files.getprec
syn keyword morvaneCommand io.files.getshort io.files.getsucc io.files.last io.files.length
syn keyword morvaneCommand io.files.new io.files.next io.files.number io.files.replacetxt
syn keyword morvaneCommand io.files.rest io.files.size io.files.sort io.files.sort.date
syn keyword morvaneCommand io.files.sort.real io.files.sort.size io.files.sub io.files.subweak
syn keyword morvaneCommand io.files.to.list io.fileshort io.getbash io.getdir io.getfile
syn keyword morvaneCommand io.getfileextension io.getfilename io.getfullfileextension io.getshortdir
syn keyword morvaneCommand io.getshortfilename io.sorting io.workdir leapyear line.center
syn keyword morvaneCommand line.center.objects line.clean line.clear line.copy line.copyscale
syn keyword morvaneCommand line.discrete line.discrete.3d line.distance line.draw line.draw.cube
syn keyword morvaneCommand line.draw.cube.solid line.draw.line line.draw.line.solid line.draw.point
syn keyword morvaneCommand line.draw.point.solid line.draw.solid line.draw.sphere
syn keyword morvaneCommand line.draw.sphere.solid line.draw.t line.draw.value line.draw.value.t
syn keyword morvaneCommand line.dump line.erase.duplicates line.erase.duplicates.begin
syn keyword morvaneCommand line.erase.duplicates.near line.erase.length.max line.erase.length.min
syn keyword morvaneCommand line.erase.t.max line.erase.t.min line.length line.line.lines
syn keyword morvaneCommand line.line.objects line.line.points line.load line.max.t
syn keyword morvaneCommand line.mean.duplicates.near line.mean.t line.median.t line.min.t line.name
syn keyword morvaneCommand line.new line.number line.object.name line.save line.save.dxf
syn keyword morvaneCommand line.save.maya line.save.mv3d line.save.obj line.save.swc
syn keyword morvaneCommand line.save.trackvis line.save.txt line.save.vtk line.save.vtp
syn keyword morvaneCommand line.savemaya line.savetrackvis line.savetxt line.sd.t line.swap line.use
syn keyword morvaneCommand line.vector.invert line.vector.maxscale line.vector.minscale
syn keyword morvaneCommand line.vector.negate line.vector.norm line.vector.normscale
syn keyword morvaneCommand line.vector.scale list.background list.before list.chars list.clean
syn keyword morvaneCommand list.clear list.complex list.copy list.delete list.dump list.first
syn keyword morvaneCommand list.flip list.get list.hyper list.iflist list.insert list.kind list.last
syn keyword morvaneCommand list.length list.load list.longest list.max list.mean list.min list.name
syn keyword morvaneCommand list.nat list.new list.next list.outlier list.outlier.baseline
syn keyword morvaneCommand list.outlier.factor list.pop list.position list.push list.put list.real
syn keyword morvaneCommand list.save list.save.table list.sd list.shortest list.size list.smooth
syn keyword morvaneCommand list.sort list.sort.real list.swap list.to.io.dirs list.to.io.files
syn keyword morvaneCommand list.to.stack list.use list.value list.vector math.angle math.decimal
syn keyword morvaneCommand math.degree math.digit math.leading math.length math.matrix math.maxnorm
syn keyword morvaneCommand math.minnorm math.norm math.scientific math.trailing math.vector matrix
syn keyword morvaneCommand matrix.e1 matrix.e2 matrix.e3 matrix.eigen matrix.ev1 matrix.ev2
syn keyword morvaneCommand matrix.ev3 matrix.fa matrix.inverse matrix.join matrix.move
syn keyword morvaneCommand matrix.move.get matrix.rotation matrix.rotation.get matrix.scale
syn keyword morvaneCommand matrix.scale.get matrix.space matrix.trace matrix.transform
syn keyword morvaneCommand matrix.transpose matrix.v1 matrix.v2 matrix.v3 matrix.v4 matrix.vector
syn keyword morvaneCommand matrix2quat max mesh.clean mesh.clear mesh.dump mesh.name mesh.new
syn keyword morvaneCommand mesh.swap mesh.use milliscond min minmax minute month new nop print
syn keyword morvaneCommand print.blue print.cyan print.green print.purple print.red print.yellow
syn keyword morvaneCommand progress quat quat.angle quat.conjugate quat.join quat.mul quat.transform
syn keyword morvaneCommand quat.vector quat2matrix random random.byte random.full random.fullgray
syn keyword morvaneCommand random.gray random.range random.range.nat random.rgb random.rgba
syn keyword morvaneCommand random.word random2 random2.full random3 random3.full random4
syn keyword morvaneCommand random4.full run scalar.16bit scalar.1bit scalar.8bit scalar.background
syn keyword morvaneCommand scalar.bool scalar.byte scalar.center scalar.clean scalar.clear
syn keyword morvaneCommand scalar.copy.method scalar.count scalar.diffusion
syn keyword morvaneCommand scalar.diffusion.adaptive.x2 scalar.diffusion.adaptive.x3
syn keyword morvaneCommand scalar.diffusion.adaptive.x4 scalar.diffusion.adaptive.x5
syn keyword morvaneCommand scalar.diffusion.angle scalar.diffusion.dump scalar.diffusion.max
syn keyword morvaneCommand scalar.diffusion.method scalar.diffusion.x2 scalar.diffusion.x3
syn keyword morvaneCommand scalar.diffusion.x4 scalar.diffusion.x5 scalar.dump scalar.fullscan
syn keyword morvaneCommand scalar.g2l scalar.getskeleton scalar.ifplain scalar.ifscalar scalar.info
syn keyword morvaneCommand scalar.invert scalar.l2g scalar.label scalar.labels.clean
syn keyword morvaneCommand scalar.labels.clear scalar.labels.dump scalar.labels.length
syn keyword morvaneCommand scalar.labels.new scalar.line.skeleton scalar.load scalar.load.filter
syn keyword morvaneCommand scalar.load.framework scalar.load.hdr scalar.load.labels scalar.load.nii
syn keyword morvaneCommand scalar.load.nii.gz scalar.load.properties scalar.loadhdr scalar.loadnii
syn keyword morvaneCommand scalar.loadnii.gz scalar.make scalar.make.scalar scalar.make.vector
syn keyword morvaneCommand scalar.matrix scalar.matrix.v1 scalar.matrix.v2 scalar.matrix.v3
syn keyword morvaneCommand scalar.max scalar.min scalar.name scalar.nat scalar.new scalar.offset
syn keyword morvaneCommand scalar.offset.add scalar.offset.center scalar.origin scalar.origin.center
syn keyword morvaneCommand scalar.save scalar.save.labels scalar.save.properties scalar.scale
syn keyword morvaneCommand scalar.scale.mul scalar.scale.norm scalar.sethigher scalar.setlower
syn keyword morvaneCommand scalar.setvalue scalar.size scalar.submethod scalar.sum scalar.swap
syn keyword morvaneCommand scalar.unflip scalar.unrotate scalar.use scalar.value scalar.word second
syn keyword morvaneCommand sleep stack stack.clean stack.clear stack.flip stack.length stack.size
syn keyword morvaneCommand stack.to.list stop table.addrow table.clean table.clear
syn keyword morvaneCommand table.column.to.list table.columns.to.array table.columns.to.constant
syn keyword morvaneCommand table.dump table.find table.get table.getstat table.header table.iftable
syn keyword morvaneCommand table.lengthx table.lengthy table.load table.load.comment table.name
syn keyword morvaneCommand table.new table.put table.row.to.list table.rows.to.array
syn keyword morvaneCommand table.rows.to.constant table.save table.save.data table.save.transposed
syn keyword morvaneCommand table.setjoin table.setmethod table.sizex table.sizey table.swap
syn keyword morvaneCommand table.use tensor.dump tensor.float tensor.int32 tensor.int64
syn keyword morvaneCommand tensor.integer tensor.name tensor.nat tensor.swap tensor.use text.collect
syn keyword morvaneCommand text.collect.append text.count text.delete.after text.delete.before
syn keyword morvaneCommand text.delete.line text.delete.other text.filter text.filter.not text.find
syn keyword morvaneCommand text.find.all text.ignore.after text.ignore.before text.replace
syn keyword morvaneCommand text.split text.split.file text.split.file.after text.split.file.before
syn keyword morvaneCommand timer.get timer.start timestamp txt.collect txt.collect.append txt.count
syn keyword morvaneCommand txt.delete.after txt.delete.before txt.delete.line txt.delete.other
syn keyword morvaneCommand txt.filter txt.filter.not txt.find txt.find.all txt.ignore.after
syn keyword morvaneCommand txt.ignore.before txt.replace txt.split txt.split.file
syn keyword morvaneCommand txt.split.file.after txt.split.file.before vector.24bit vector.add
syn keyword morvaneCommand vector.append vector.append.best vector.append.zero vector.background
syn keyword morvaneCommand vector.center vector.clean vector.cleanup vector.clear vector.copy
syn keyword morvaneCommand vector.copy.method vector.copyscale vector.count vector.count.all
syn keyword morvaneCommand vector.crop vector.direction vector.dump vector.erase.max
syn keyword morvaneCommand vector.erase.min vector.factor.distance vector.flip.x vector.flip.y
syn keyword morvaneCommand vector.flip.z vector.float vector.g2l vector.get.angle
syn keyword morvaneCommand vector.get.fullangle vector.get.length vector.get.x vector.get.y
syn keyword morvaneCommand vector.get.z vector.hardsmooth vector.ifplain vector.ifvector vector.info
syn keyword morvaneCommand vector.int32 vector.int64 vector.integer vector.inverse vector.l2g
syn keyword morvaneCommand vector.line vector.load vector.load.framework vector.load.nii
syn keyword morvaneCommand vector.load.nii.gz vector.load.properties vector.load.txt vector.loadnii
syn keyword morvaneCommand vector.loadnii.gz vector.loadtxt vector.make vector.make.scalar
syn keyword morvaneCommand vector.make.vector vector.mask vector.matrix vector.matrix.v1
syn keyword morvaneCommand vector.matrix.v2 vector.matrix.v3 vector.max vector.mean vector.min
syn keyword morvaneCommand vector.move vector.mul vector.name vector.nat vector.new vector.norm
syn keyword morvaneCommand vector.norm.max vector.norm.min vector.norm.relative vector.offset
syn keyword morvaneCommand vector.offset.center vector.origin vector.origin.add vector.origin.center
syn keyword morvaneCommand vector.real vector.remove.outliers vector.resize vector.rgb vector.save
syn keyword morvaneCommand vector.save.properties vector.scale vector.scale.mul vector.scale.norm
syn keyword morvaneCommand vector.setlength vector.setlength.relative vector.size vector.smooth
syn keyword morvaneCommand vector.softsmooth vector.stream vector.stream.angles vector.stream.mask
syn keyword morvaneCommand vector.stream.mask.random vector.stream.muscle vector.stream.muscle.mask
syn keyword morvaneCommand vector.stream.muscle.mask.random vector.stream.muscle.random
syn keyword morvaneCommand vector.stream.nodes vector.stream.random vector.stream.seeds
syn keyword morvaneCommand vector.stream.slice vector.stream.slice.mask vector.stream.slicex
syn keyword morvaneCommand vector.stream.slicex.mask vector.stream.slicey vector.stream.slicey.mask
syn keyword morvaneCommand vector.stream.slicez vector.stream.slicez.mask vector.stream.snakes
syn keyword morvaneCommand vector.stream.steps vector.stream.stop.angle vector.stream.stop.contrast
syn keyword morvaneCommand vector.stream.stop.length vector.stream.uniform
syn keyword morvaneCommand vector.stream.uniform.random vector.sub vector.substack vector.swap
syn keyword morvaneCommand vector.unflip vector.unrotate vector.use wait weekday write write.tab
syn keyword morvaneCommand writeln xml.delete xml.gettag xml.gettag.id xml.insert.begin
syn keyword morvaneCommand xml.insert.end xml.replace xml.show year
syn keyword morvaneVariable image.input scalar.input vector.input tensor.input mesh.input mesh.split
syn keyword morvaneVariable mesh.smooth mesh.rotate mesh.translate mesh.scale image.type scalar.type
syn keyword morvaneVariable vector.type tensor.type mesh.type random.seed true false condition
syn keyword morvaneVariable result parameter for.length for.rest for.count for.relative for.relativ
syn keyword morvaneVariable thread.max parallel.length parallel.count parallel.relativ

syn match morvaneNumber /\%(^\|[^[:alnum:]_.@-]\)\@1<=-\=\d\+\%(\.\d\+\)\=\%(e[+-]\=\d\+\)\=\w\@!/
syn match morvaneNumber /\%(^\| \)\@1<=\%(\$\x\+\|%[01]\+\|#\d\+\)\%( \|$\)\@=/
syn match morvaneTarget /^\s*\zs\S\+\%( \+\%(\V:=\m\|\V~=\m\|\V|=\m\|\V+=\m\|\V-=\m\|\V*=\m\|\V\/=\m\|\Vo=\m\|\Vx=\m\|\V#=\m\|\V%=\m\|\V$=\m\|\Vd=\m\|\Vs=\m\|\Vr=\m\|\V!=\m\)\%( \|$\)\)\@=/
syn match morvaneOperator / \@1<=\%(\V:=\m\|\V~=\m\|\V|=\m\|\V+=\m\|\V-=\m\|\V*=\m\|\V\/=\m\|\Vo=\m\|\Vx=\m\|\V#=\m\|\V%=\m\|\V$=\m\|\Vd=\m\|\Vs=\m\|\Vr=\m\|\V!=\m\)\%( \|$\)\@=/
syn match morvaneBracket /[()<>\[\]{}]/
syn match morvaneAt /@\w\+\%(\.\w\+\)*/
syn match morvaneDirective /^\s*\zs@@\S/
syn match morvaneKeyword /^\s*\zs\%(\Vappend\m\|\Vappend.space\m\|\Vbegin\m\|\Vbreak\m\|\Vcase\m\|\Velse\m\|\Vend\m\|\Vexecute\m\|\Vfor\m\|\Vfor.part\m\|\Vfor.random\m\|\Vfunction\m\|\Vglobal\m\|\Vhalt\m\|\Vif\m\|\Vif.else\m\|\Vif.false\m\|\Vif.then\m\|\Vif.true\m\|\Vifabsequal\m\|\Vifall\m\|\Vifallcontain\m\|\Vifallpart\m\|\Vifand\m\|\Vifbigger\m\|\Vifbigger.filesize\m\|\Vifcontain\m\|\Vifempty\m\|\Vifequal\m\|\Vifequal.filesize\m\|\Vifexists\m\|\Viffilesize\m\|\Vifnand\m\|\Vifnor\m\|\Vifnot\m\|\Vifnotall\m\|\Vifnotallcontain\m\|\Vifnotallpart\m\|\Vifnotcontain\m\|\Vifnotempty\m\|\Vifnotexists\m\|\Vifnotone\m\|\Vifnotonecontain\m\|\Vifnotonepart\m\|\Vifnotpart\m\|\Vifnotsame\m\|\Vifnotzero\m\|\Vifone\m\|\Vifonecontain\m\|\Vifonepart\m\|\Vifor\m\|\Vifpart\m\|\Vifsame\m\|\Vifsmaller\m\|\Vifsmaller.filesize\m\|\Vifzero\m\|\Vifzero.filesize\m\|\Vignore\m\|\Vimport\m\|\Vinclude\m\|\Vlocal\m\|\Vmaximize\m\|\Vminimize\m\|\Vmodule\m\|\Vof\m\|\Vofnot\m\|\Voutput.append\m\|\Voutput.store\m\|\Vparallel\m\|\Vprocedure\m\|\Vprocess\m\|\Vrepeat\m\|\Vstore\m\|\Vstore.space\m\|\Vsub\m\|\Vthen\m\|\Vuntil\m\|\Vvar\m\|\Vwhile\m\|\Vwith\m\)\%( \|$\)\@=/
syn match morvaneKeyword /\c\%(^\s*\%(\%(if\.\)\=\%(then\|else\)\|if\.true\|if\.false\) \+\)\@<=\%(\Vappend\m\|\Vappend.space\m\|\Vbegin\m\|\Vbreak\m\|\Vcase\m\|\Velse\m\|\Vend\m\|\Vexecute\m\|\Vfor\m\|\Vfor.part\m\|\Vfor.random\m\|\Vfunction\m\|\Vglobal\m\|\Vhalt\m\|\Vif\m\|\Vif.else\m\|\Vif.false\m\|\Vif.then\m\|\Vif.true\m\|\Vifabsequal\m\|\Vifall\m\|\Vifallcontain\m\|\Vifallpart\m\|\Vifand\m\|\Vifbigger\m\|\Vifbigger.filesize\m\|\Vifcontain\m\|\Vifempty\m\|\Vifequal\m\|\Vifequal.filesize\m\|\Vifexists\m\|\Viffilesize\m\|\Vifnand\m\|\Vifnor\m\|\Vifnot\m\|\Vifnotall\m\|\Vifnotallcontain\m\|\Vifnotallpart\m\|\Vifnotcontain\m\|\Vifnotempty\m\|\Vifnotexists\m\|\Vifnotone\m\|\Vifnotonecontain\m\|\Vifnotonepart\m\|\Vifnotpart\m\|\Vifnotsame\m\|\Vifnotzero\m\|\Vifone\m\|\Vifonecontain\m\|\Vifonepart\m\|\Vifor\m\|\Vifpart\m\|\Vifsame\m\|\Vifsmaller\m\|\Vifsmaller.filesize\m\|\Vifzero\m\|\Vifzero.filesize\m\|\Vignore\m\|\Vimport\m\|\Vinclude\m\|\Vlocal\m\|\Vmaximize\m\|\Vminimize\m\|\Vmodule\m\|\Vof\m\|\Vofnot\m\|\Voutput.append\m\|\Voutput.store\m\|\Vparallel\m\|\Vprocedure\m\|\Vprocess\m\|\Vrepeat\m\|\Vstore\m\|\Vstore.space\m\|\Vsub\m\|\Vthen\m\|\Vuntil\m\|\Vvar\m\|\Vwhile\m\|\Vwith\m\)\%( \|$\)\@=/
syn match morvaneKeyword /\c\%(^\s*of \+\S\+ \+\)\@<=\%(\Vappend\m\|\Vappend.space\m\|\Vbegin\m\|\Vbreak\m\|\Vcase\m\|\Velse\m\|\Vend\m\|\Vexecute\m\|\Vfor\m\|\Vfor.part\m\|\Vfor.random\m\|\Vfunction\m\|\Vglobal\m\|\Vhalt\m\|\Vif\m\|\Vif.else\m\|\Vif.false\m\|\Vif.then\m\|\Vif.true\m\|\Vifabsequal\m\|\Vifall\m\|\Vifallcontain\m\|\Vifallpart\m\|\Vifand\m\|\Vifbigger\m\|\Vifbigger.filesize\m\|\Vifcontain\m\|\Vifempty\m\|\Vifequal\m\|\Vifequal.filesize\m\|\Vifexists\m\|\Viffilesize\m\|\Vifnand\m\|\Vifnor\m\|\Vifnot\m\|\Vifnotall\m\|\Vifnotallcontain\m\|\Vifnotallpart\m\|\Vifnotcontain\m\|\Vifnotempty\m\|\Vifnotexists\m\|\Vifnotone\m\|\Vifnotonecontain\m\|\Vifnotonepart\m\|\Vifnotpart\m\|\Vifnotsame\m\|\Vifnotzero\m\|\Vifone\m\|\Vifonecontain\m\|\Vifonepart\m\|\Vifor\m\|\Vifpart\m\|\Vifsame\m\|\Vifsmaller\m\|\Vifsmaller.filesize\m\|\Vifzero\m\|\Vifzero.filesize\m\|\Vignore\m\|\Vimport\m\|\Vinclude\m\|\Vlocal\m\|\Vmaximize\m\|\Vminimize\m\|\Vmodule\m\|\Vof\m\|\Vofnot\m\|\Voutput.append\m\|\Voutput.store\m\|\Vparallel\m\|\Vprocedure\m\|\Vprocess\m\|\Vrepeat\m\|\Vstore\m\|\Vstore.space\m\|\Vsub\m\|\Vthen\m\|\Vuntil\m\|\Vvar\m\|\Vwhile\m\|\Vwith\m\)\%( \|$\)\@=/
syn match morvaneDeclaration /^\s*\zs\%(\Vvar\m\|\Vlocal\m\|\Vglobal\m\)\S*/
" A text ends with its line and at a comment, which no quote protects.
syn region morvaneString start=/"/ end=/"/ end=/ \/\//me=s-1 end=/$/ oneline contains=morvaneAt
syn region morvaneString start=/'/ end=/'/ end=/ \/\//me=s-1 end=/$/ oneline contains=morvaneAt
syn match morvaneComment / \/\/.*$/
syn match morvaneComment /^\s*\zs\%(\/\/\|#\|%\).*$/
syn match morvaneComment /\%^!.*$/

hi def link morvaneCommand Function
hi def link morvaneVariable Identifier
hi def link morvaneNumber Number
hi def link morvaneTarget Identifier
hi def link morvaneOperator Operator
hi def link morvaneBracket Delimiter
hi def link morvaneAt Special
hi def link morvaneDirective PreProc
hi def link morvaneKeyword Statement
hi def link morvaneDeclaration Type
hi def link morvaneString String
hi def link morvaneComment Comment

let b:current_syntax = "morvane"
